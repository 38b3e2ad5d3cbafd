#pragma once

#include <QString>

#include <vector>

/// One sub-option of a menu group. `top` is in logical pixels from the top of the menu column; Alt with the letter
/// chooses it while the group is open, where a letter is left for it beside those of the pages.
struct MenuSuboption
{
    QString caption;
    int top;
    int page;
    QChar letter;
};

struct MenuGroupRow
{
    QString caption;
    std::vector<MenuSuboption> suboptions;
};

/// The five groups, 1 to 5, and their sub-options in order.
const MenuGroupRow& MenuGroupOf(int group);
inline constexpr int MenuGroups = 5;
inline constexpr int MostSuboptions = 4;

/// The sub-option N of a group, or nullptr where the group has none of that number.
const MenuSuboption* FindSuboption(int group, int number);

/// The top of a group's button, in logical pixels, while the given group (0 for none) is open.
int GroupButtonTop(int button, int openGroup);

/// One clickable label of an introduction page, with the description beside it, by their indices in the label array.
struct IntroductionOption
{
    int label;
    int suboption;
    int descriptionLabel;
    QString description;
};

/// What an introduction page says.
struct Introduction
{
    QString title;
    int aboutLabel;
    QString about;
    std::vector<IntroductionOption> options;
};

const Introduction& IntroductionOf(int group);
