#include "shell/menu_table.h"

namespace {

QString Text(const char* utf8)
{
    return QString::fromUtf8(utf8);
}

const std::array<MenuGroupRow, MenuGroups>& Groups()
{
    static const std::array<MenuGroupRow, MenuGroups> groups{{
        {Text("Add Draws"), {{Text("Add Main Draw"), 1920, 6, u'M'}, {Text("Add Thunderball Draw"), 2290, 7, u'T'}}},
        {Text("Draw Records"),
         {{Text("View Latest Draw"), 2400, 8, {}},
          {Text("View Any Single Draw"), 2760, 9, u'N'},
          {Text("View or Edit All Draws"), 3120, 10, u'O'}}},
        {Text("Your Entries"),
         {{Text("User Details"), 2880, 11, u'U'},
          {Text("Add New Entries"), 3240, 18, u'N'},
          {Text("View or Edit Entries"), 3600, 13, u'O'},
          {Text("Check Your Entries"), 3960, 12, u'K'}}},
        {Text("Entry Generator"), {{Text("Main Draw"), 3360, 26, u'M'}}},
        {Text("Draw Analysis"), {{Text("Main Draw"), 3840, 21, u'M'}, {Text("Thunderball Draw"), 4200, 22, u'T'}}},
    }};
    return groups;
}

const std::array<Introduction, MenuGroups>& Introductions()
{
    static const std::array<Introduction, MenuGroups> introductions{{
        {Text("Add Draw to Records"),
         2,
         Text("This is where you can add draws, as they are drawn, to the draw records database."),
         {{0, 1, 3,
           Text("Add a main lottery draw to the draw records database by entering the date, machine used, set of balls "
                "used and the balls drawn.")},
          {1, 2, 4,
           Text("Add a thunderball lottery draw to the draw records database by entering the date and the balls "
                "drawn.")}}},
        {Text("Draw Records"),
         7,
         Text("This is where you can view, edit or delete every draw from the main or thunderball draw records."),
         {{9, 1, 6, Text("See the latest main draw and the latest thunderball draw results.")},
          {8, 2, 5, Text("Select any date, and you will be shown the main and thunderball draws from that day.")},
          {26, 3, 25,
           Text("See a list of every draw result from the main and thunderball draw, then view in detail, edit or "
                "delete any draw.")}}},
        {Text("Your Entries"),
         12,
         Text("This is where you store user profiles and lottery entries for those users."),
         {{14, 1, 11, Text("Add, edit or delete user names and spending limits.")},
          {13, 2, 10,
           Text("Enter a new lottery entry, specify which draw and draw day, then store it under a users name.")},
          {15, 3, 20, Text("See a list of entries stored by any user, then view in detail, edit or delete any entry.")},
          {21, 4, 22, Text("Check all entries against any draw to see if you've won.")}}},
        {Text("Entry Generator"),
         17,
         Text("This is where you can specify a user, a build method, how many lines you want or your favorite numbers, "
              "and your entries will be generated for you."),
         {{19, 1, 16,
           Text("Use any of a  number of different build methods to create entries and then store them under any "
                "user.")}}},
        {Text("Draw Analysis"),
         28,
         Text("This is where you can see how often certain numbers, colours or lottery machines etc.  get drawn or how "
              "long since it was drawn."),
         {{24, 1, 29, Text("Various data screens and charts for the main lottery draw.")},
          {23, 2, 30, Text("Various data screens and charts for the thunderball lottery draw.")}}},
    }};
    return introductions;
}

} // namespace

const MenuGroupRow& MenuGroupOf(int group)
{
    return Groups().at(static_cast<size_t>(group) - 1);
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
    constexpr int firstTop = 1440;
    constexpr int distance = 480;
    constexpr int roomForSuboptions = 1680;
    const bool pushedDown = openGroup != 0 && openGroup < button;
    return firstTop + distance * (button - 1) + (pushedDown ? roomForSuboptions : 0);
}

const Introduction& IntroductionOf(int group)
{
    return Introductions().at(static_cast<size_t>(group) - 1);
}
