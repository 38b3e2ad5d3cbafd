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
#include "draws/game.h"
#include "draws/latest_draw_page.h"
#include "shell/start_page.h"
#include "users/add_entries_page.h"
#include "users/entries_page.h"
#include "users/entry_edit_page.h"
#include "users/entry_view_page.h"
#include "users/user_details_page.h"
#include "utilities/links_page.h"

namespace {

constexpr PageTableRow Pages[] = {
    {0, [](PageSwitch& pages) -> PageFrame* { return new StartPage(pages); }, false},
    {6, [](PageSwitch&) -> PageFrame* { return new AddDrawPage(MainGame); }, true},
    {7, [](PageSwitch&) -> PageFrame* { return new AddDrawPage(ThunderballGame); }, true},
    {8, [](PageSwitch&) -> PageFrame* { return new LatestDrawPage; }, true},
    {9, [](PageSwitch&) -> PageFrame* { return new DrawBrowserPage; }, true},
    {10, [](PageSwitch& pages) -> PageFrame* { return new DrawGridsPage(pages); }, true},
    {11, [](PageSwitch&) -> PageFrame* { return new UserDetailsPage; }, true},
    {12, [](PageSwitch& pages) -> PageFrame* { return new CheckPage(pages); }, true},
    {13, [](PageSwitch& pages) -> PageFrame* { return new EntriesPage(pages); }, true},
    {14, [](PageSwitch&) -> PageFrame* { return new DrawDetailPage(MainGame); }, false},
    {15, [](PageSwitch&) -> PageFrame* { return new DrawDetailPage(ThunderballGame); }, false},
    {16, [](PageSwitch& pages) -> PageFrame* { return new EditDrawPage(MainGame, pages); }, false},
    {17, [](PageSwitch& pages) -> PageFrame* { return new EditDrawPage(ThunderballGame, pages); }, false},
    {18, [](PageSwitch& pages) -> PageFrame* { return new AddEntriesPage(pages); }, true},
    {19, [](PageSwitch&) -> PageFrame* { return new EntryViewPage; }, false},
    {20, [](PageSwitch& pages) -> PageFrame* { return new EntryEditPage(pages); }, false},
    {21, [](PageSwitch& pages) -> PageFrame* { return new AnalysisPage(MainGame, pages); }, true},
    {22, [](PageSwitch& pages) -> PageFrame* { return new AnalysisPage(ThunderballGame, pages); }, true},
    {23, [](PageSwitch&) -> PageFrame* { return new BallDataPage(MainGame); }, false},
    {24, [](PageSwitch&) -> PageFrame* { return new BallDataPage(ThunderballGame); }, false},
    {25, [](PageSwitch&) -> PageFrame* { return new LinksPage; }, true},
    {26, [](PageSwitch& pages) -> PageFrame* { return new EntryGeneratorPage(pages); }, true},
};

} // namespace

const PageTableRow* FindPage(int index)
{
    for (const PageTableRow& row : Pages)
        if (row.index == index)
            return &row;
    return nullptr;
}
