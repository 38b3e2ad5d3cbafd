#include "stops.h"

namespace {

constexpr Stop AllStops[] = {
    {"start", 0, 0},
    {"group_1", 1, 0},
    {"group_2", 2, 0},
    {"group_3", 3, 0},
    {"group_4", 4, 0},
    {"group_5", 5, 0},
    {"add_main_empty", 1, 1},
    {"add_thunderball", 1, 2},
    {"latest_draw", 2, 1},
    {"draw_browser", 2, 2},
    {"all_draws", 2, 3},
    {"main_draw", 2, 3, "F10mainviewbutton"},
    {"thunderball_draw", 2, 3, "F10thunderviewbutton"},
    {"edit_main_draw", 2, 3, "F10maineditbutton"},
    {"edit_thunderball_draw", 2, 3, "F10thundereditbutton"},
    {"user_details", 3, 1},
    {"", 3, 1, "F11adduser"},
    {"edit_user", 3, 1, "F11edituser"},
    {"", 3, 2},
    {"entries", 3, 3},
    {"view_entry", 3, 3, "F13view"},
    {"edit_entry", 3, 3, "F13edit"},
    {"view_thunderball_entry", 3, 3, "F13typethunder", "F13view"},
    {"edit_thunderball_entry", 3, 3, "F13typethunder", "F13edit"},
    {"", 3, 4},
    {"", 4, 1},
    {"analysis_main", 5, 1},
    {"analysis_thunderball", 5, 2},
    {"ball_data_main", 5, 1, "F21screen_7"},
    {"ball_data_thunderball", 5, 2, "F22screen_5"},
    {"links", 0, 0, "F0links"},
};

} // namespace

std::span<const Stop> Stops()
{
    return AllStops;
}
