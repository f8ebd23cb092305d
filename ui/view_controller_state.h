#pragma once

// What the main window's controller knows besides its views, at the values a new controller
// starts with.

#include "data/color_catalogue.h"
#include "data/stone_list.h"

#include <string>
#include <vector>

namespace velmora {

struct ViewControllerState {
    std::string selectedColor;           // the chosen catalogue colour's name
    bool isUSBStatus = false;            // the instrument is connected, as last notified
    std::vector<std::string> arr_string; // the titles of btn_stonesList
    StoneList arr_stones;                // the stones listed now
    StoneList arr_stonesGlobal;          // the whole reference set
    std::vector<Color> arr_color;        // the colour catalogue
    int mode = 0;                        // the tab shown: 0 R.I. reading, 1 dictionary
    int selectedTab = 0;                 // the tab last selected; always equal to mode
    bool isRIState = false;              // which criteria are switched on
    bool isSGState = false;
    bool isHardnessState = false;
    bool isNameState = false;
    bool isColorState = false;
    std::string decimalSeparator = "."; // the user's, as the locale gave it at construction
};

} // namespace velmora
