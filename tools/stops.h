#pragma once

#include <span>

/// A page of the menu (group 0 is the start page), and the buttons that are pressed on it. Those pages have no name
/// that the main job shows filled.
struct Stop
{
    const char* name;
    int group;
    int suboption;
    const char* press = nullptr;
    const char* thenPress = nullptr;
};

/// Every page of the program; for some there must be a user who has entries of both games.
std::span<const Stop> Stops();
