#include "ui/main_window_outlets.h"

namespace velmora {

MainWindowOutlets::MainWindowOutlets(MainWindow& w)
    : view(w.view), box(w.box), btn_RIReading(w.btn_RIReading), bvtn_dictionary(w.bvtn_dictionary),
      btn_tutorial(w.btn_tutorial), btn_contactUs(w.btn_contactUs),
      border_RiReading(w.border_RiReading), border_dictionary(w.border_dictionary),
      view_leftPanel(w.view_leftPanel), check_RI(w.check_RI), check_sg(w.check_sg),
      check_hardness(w.check_hardness), check_color(w.check_color), check_Name(w.check_Name),
      check_Name_Container(w.check_Name_Container), txt_leftRIReading(w.txt_leftRIReading),
      txt_leftSG(w.txt_leftSG), txt_leftHardness(w.txt_leftHardness),
      txt_left_name(w.txt_left_name), btn_color(w.btn_color), view_color(w.view_color),
      btn_search(w.btn_search), btn_enter(w.btn_enter), btn_clearAll(w.btn_clearAll),
      btn_reset(w.btn_reset), view_reading(w.view_reading),
      reading_container_heightConstraint(w.reading_container_heightConstraint),
      usb_device_reading(w.usb_device_reading), view_deviceStatus(w.view_deviceStatus),
      lbl_deviceStatus(w.lbl_deviceStatus), btn_connected(w.btn_connected),
      btn_disconnected(w.btn_disconnected), btn_stonesList(w.btn_stonesList),
      lbl_stonesCount(w.lbl_stonesCount), tableView(w.tableView), txt_RI(w.txt_RI),
      txt_sg(w.txt_sg), txt_hardness(w.txt_hardness), txt_bierfence(w.txt_bierfence),
      txt_stroneFamily(w.txt_stroneFamily), txt_commonSource(w.txt_commonSource),
      txt_otherInformation(w.txt_otherInformation), txt_otherProduct(w.txt_otherProduct) {}

} // namespace velmora
