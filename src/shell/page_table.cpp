#include "shell/page_table.h"

#include "analysis/analysis_page.h"
#include "analysis/ball_data_page.h"
#include "builder/entry_generator_page.h"
#include "checking/check_page.h"
#include "draws/add_draw_page.h"
#include "draws/draw_browser_page.h"
#include "draws/draw_detail_page.h"
#include "draws/draw_grids_page.h"
#include "draws/edit_draw_page.h"
#include "draws/latest_draw_page.h"
#include "game/game.h"
#include "shell/start_page.h"
#include "users/add_entries_page.h"
#include "users/entries_page.h"
#include "users/entry_edit_page.h"
#include "users/entry_view_page.h"
#include "users/user_details_page.h"
#include "utilities/links_page.h"

namespace {

constexpr PageTableRow Pages[] = {
    {0, false, [](PageSwitch& pages) -> PageFrame* { return new StartPage(pages); }},
    {6, true, [](PageSwitch&) -> PageFrame* { return new AddDrawPage(MainGame); }},
    {7, true, [](PageSwitch&) -> PageFrame* { return new AddDrawPage(ThunderballGame); }},
    {8, true, [](PageSwitch&) -> PageFrame* { return new LatestDrawPage; }},
    {9, true, [](PageSwitch&) -> PageFrame* { return new DrawBrowserPage; }},
    {10, true, [](PageSwitch& pages) -> PageFrame* { return new DrawGridsPage(pages); }},
    {11, true, [](PageSwitch&) -> PageFrame* { return new UserDetailsPage; }},
    {12, true, [](PageSwitch& pages) -> PageFrame* { return new CheckPage(pages); }},
    {13, true, [](PageSwitch& pages) -> PageFrame* { return new EntriesPage(pages); }},
    {14, false, [](PageSwitch&) -> PageFrame* { return new DrawDetailPage(MainGame); }},
    {15, false, [](PageSwitch&) -> PageFrame* { return new DrawDetailPage(ThunderballGame); }},
    {16, false, [](PageSwitch& pages) -> PageFrame* { return new EditDrawPage(MainGame, pages); }},
    {17, false, [](PageSwitch& pages) -> PageFrame* { return new EditDrawPage(ThunderballGame, pages); }},
    {18, true, [](PageSwitch& pages) -> PageFrame* { return new AddEntriesPage(pages); }},
    {19, false, [](PageSwitch&) -> PageFrame* { return new EntryViewPage; }},
    {20, false, [](PageSwitch&) -> PageFrame* { return new EntryEditPage; }},
    {21, true, [](PageSwitch& pages) -> PageFrame* { return new AnalysisPage(MainGame, pages); }},
    {22, true, [](PageSwitch& pages) -> PageFrame* { return new AnalysisPage(ThunderballGame, pages); }},
    {23, false, [](PageSwitch&) -> PageFrame* { return new BallDataPage(MainGame); }},
    {24, false, [](PageSwitch&) -> PageFrame* { return new BallDataPage(ThunderballGame); }},
    {25, true, [](PageSwitch&) -> PageFrame* { return new LinksPage; }},
    {26, true, [](PageSwitch& pages) -> PageFrame* { return new EntryGeneratorPage(pages); }},
};

} // namespace

const PageTableRow* FindPage(int index)
{
    for (const PageTableRow& row : Pages)
        if (row.index == index)
            return &row;
    return nullptr;
}
