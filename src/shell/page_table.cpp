#include "shell/page_table.h"

#include "checking/check_page.h"
#include "draws/add_draw_page.h"
#include "draws/game.h"
#include "shell/start_page.h"
#include "users/add_entries_page.h"
#include "users/user_details_page.h"
#include "utilities/links_page.h"

namespace {

constexpr PageTableRow Pages[] = {
    {0, [](PageSwitch& pages) -> PageFrame* { return new StartPage(pages); }, false},
    {6, [](PageSwitch&) -> PageFrame* { return new AddDrawPage(MainGame); }, true},
    {7, [](PageSwitch&) -> PageFrame* { return new AddDrawPage(ThunderballGame); }, true},
    {11, [](PageSwitch&) -> PageFrame* { return new UserDetailsPage; }, true},
    {12, [](PageSwitch& pages) -> PageFrame* { return new CheckPage(pages); }, true},
    {18, [](PageSwitch& pages) -> PageFrame* { return new AddEntriesPage(pages); }, true},
    {25, [](PageSwitch&) -> PageFrame* { return new LinksPage; }, true},
};

} // namespace

const PageTableRow* FindPage(int index)
{
    for (const PageTableRow& row : Pages)
        if (row.index == index)
            return &row;
    return nullptr;
}
