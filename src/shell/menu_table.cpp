#include "shell/menu_table.h"

#include <array>

using namespace Qt::StringLiterals;

namespace {

const std::array<MenuGroupRow, MenuGroups> Groups{{
    {u"Add Draws"_s, {{u"Add Main Draw"_s, 192, 6, u'M'}, {u"Add Thunderball Draw"_s, 229, 7, u'T'}}},
    {u"Draw Records"_s,
     {{u"View Latest Draw"_s, 240, 8, {}},
      {u"View Any Single Draw"_s, 276, 9, u'N'},
      {u"View or Edit All Draws"_s, 312, 10, u'O'}}},
    {u"Your Entries"_s,
     {{u"User Details"_s, 288, 11, u'U'},
      {u"Add New Entries"_s, 324, 18, u'N'},
      {u"View or Edit Entries"_s, 360, 13, u'O'},
      {u"Check Your Entries"_s, 396, 12, u'K'}}},
    {u"Entry Generator"_s, {{u"Main Draw"_s, 336, 26, u'M'}}},
    {u"Draw Analysis"_s, {{u"Main Draw"_s, 384, 21, u'M'}, {u"Thunderball Draw"_s, 420, 22, u'T'}}},
}};

const std::array<Introduction, MenuGroups> Introductions{{
    {u"Add Draw to Records"_s,
     2,
     u"This is where you can add draws, as they are drawn, to the draw records database."_s,
     {{0, 1, 3,
       u"Add a main lottery draw to the draw records database by entering the date, machine used, set of balls "
       u"used and the balls drawn."_s},
      {1, 2, 4,
       u"Add a thunderball lottery draw to the draw records database by entering the date and the balls "
       u"drawn."_s}}},
    {u"Draw Records"_s,
     7,
     u"This is where you can view, edit or delete every draw from the main or thunderball draw records."_s,
     {{9, 1, 6, u"See the latest main draw and the latest thunderball draw results."_s},
      {8, 2, 5, u"Select any date, and you will be shown the main and thunderball draws from that day."_s},
      {26, 3, 25,
       u"See a list of every draw result from the main and thunderball draw, then view in detail, edit or "
       u"delete any draw."_s}}},
    {u"Your Entries"_s,
     12,
     u"This is where you store user profiles and lottery entries for those users."_s,
     {{14, 1, 11, u"Add, edit or delete user names and spending limits."_s},
      {13, 2, 10, u"Enter a new lottery entry, specify which draw and draw day, then store it under a users name."_s},
      {15, 3, 20, u"See a list of entries stored by any user, then view in detail, edit or delete any entry."_s},
      {21, 4, 22, u"Check all entries against any draw to see if you've won."_s}}},
    {u"Entry Generator"_s,
     17,
     u"This is where you can specify a user, a build method, how many lines you want or your favorite numbers, "
     u"and your entries will be generated for you."_s,
     {{19, 1, 16,
       u"Use any of a  number of different build methods to create entries and then store them under any "
       u"user."_s}}},
    {u"Draw Analysis"_s,
     28,
     u"This is where you can see how often certain numbers, colours or lottery machines etc.  get drawn or how "
     u"long since it was drawn."_s,
     {{24, 1, 29, u"Various data screens and charts for the main lottery draw."_s},
      {23, 2, 30, u"Various data screens and charts for the thunderball lottery draw."_s}}},
}};

} // namespace

const MenuGroupRow& MenuGroupOf(int group)
{
    return Groups.at(static_cast<size_t>(group) - 1);
}

const MenuSuboption* FindSuboption(int group, int number)
{
    if (group < 1 || group > MenuGroups)
        return nullptr;
    const auto& suboptions = MenuGroupOf(group).suboptions;
    return number >= 1 && number <= static_cast<int>(suboptions.size()) ? &suboptions[static_cast<size_t>(number) - 1]
                                                                        : nullptr;
}

int GroupButtonTop(int button, int openGroup)
{
    constexpr int firstTop = 144;
    constexpr int distance = 48;
    constexpr int roomForSuboptions = 168;
    const bool pushedDown = openGroup != 0 && openGroup < button;
    return firstTop + distance * (button - 1) + (pushedDown ? roomForSuboptions : 0);
}

const Introduction& IntroductionOf(int group)
{
    return Introductions.at(static_cast<size_t>(group) - 1);
}
