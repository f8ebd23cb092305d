#pragma once

// The controller's references to the window's elements, under the elements' names. The window
// owns the elements; these are filled once, when the controller is made for its window.

#include "ui/main_window.h"

namespace velmora {

struct MainWindowOutlets {
    explicit MainWindowOutlets(MainWindow& window);

    View& view;
    View& box;
    Button& btn_RIReading;
    Button& bvtn_dictionary;
    Button& btn_tutorial;
    Button& btn_contactUs;
    View& border_RiReading;
    View& border_dictionary;
    View& view_leftPanel;
    Button& check_RI;
    Button& check_sg;
    Button& check_hardness;
    Button& check_color;
    Button& check_Name;
    View& check_Name_Container;
    TextField& txt_leftRIReading;
    TextField& txt_leftSG;
    TextField& txt_leftHardness;
    TextField& txt_left_name;
    PopUpButton& btn_color;
    View& view_color;
    Button& btn_search;
    Button& btn_enter;
    Button& btn_clearAll;
    Button& btn_reset;
    View& view_reading;
    LayoutConstraint& reading_container_heightConstraint;
    TextField& usb_device_reading;
    View& view_deviceStatus;
    TextField& lbl_deviceStatus;
    Button& btn_connected;
    Button& btn_disconnected;
    PopUpButton& btn_stonesList;
    TextField& lbl_stonesCount;
    TableView& tableView;
    TextField& txt_RI;
    TextField& txt_sg;
    TextField& txt_hardness;
    TextField& txt_bierfence;
    TextField& txt_stroneFamily;
    TextView& txt_commonSource;
    TextView& txt_otherInformation;
    TextView& txt_otherProduct;
};

} // namespace velmora
