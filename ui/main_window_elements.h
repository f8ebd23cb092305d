#pragma once

// The main window's named elements, each named once. ELEMENT(Type, name, arguments...) is an
// element shown by the widget of the same object name in resources/main_window.ui, made with the
// arguments; CONSTRAINT(name, view) is a layout constraint on the height of the element view. The
// window's members, the controller's outlets and the Qt bindings are all made from this list, so
// an element is added here and in the .ui file, and nowhere else.
//
// The names are the window's own, spelling included.
#define VELMORA_MAIN_FORM_ELEMENTS(ELEMENT, CONSTRAINT)                                            \
    /* the root view */                                                                            \
    ELEMENT(View, view)                                                                            \
    /* Top bar and navigation */                                                                   \
    ELEMENT(View, box)                                                                             \
    ELEMENT(Button, btn_RIReading)                                                                 \
    ELEMENT(Button, bvtn_dictionary)                                                               \
    ELEMENT(Button, btn_tutorial)                                                                  \
    ELEMENT(Button, btn_contactUs)                                                                 \
    ELEMENT(View, border_RiReading)                                                                \
    ELEMENT(View, border_dictionary)                                                               \
    /* Search form */                                                                              \
    ELEMENT(View, view_leftPanel)                                                                  \
    ELEMENT(Button, check_RI, ButtonType::CheckBox)                                                \
    ELEMENT(Button, check_sg, ButtonType::CheckBox)                                                \
    ELEMENT(Button, check_hardness, ButtonType::CheckBox)                                          \
    ELEMENT(Button, check_color, ButtonType::CheckBox)                                             \
    ELEMENT(Button, check_Name, ButtonType::CheckBox)                                              \
    ELEMENT(View, check_Name_Container)                                                            \
    ELEMENT(TextField, txt_leftRIReading)                                                          \
    ELEMENT(TextField, txt_leftRIHigh)                                                             \
    ELEMENT(Button, check_overTheLimit, ButtonType::CheckBox)                                      \
    ELEMENT(TextField, txt_leftSG)                                                                 \
    ELEMENT(TextField, txt_weightAir)                                                              \
    ELEMENT(TextField, txt_weightWater)                                                            \
    ELEMENT(TextField, txt_leftHardness)                                                           \
    ELEMENT(TextField, txt_left_name)                                                              \
    ELEMENT(PopUpButton, btn_color)                                                                \
    ELEMENT(View, view_color)                                                                      \
    ELEMENT(Button, btn_search)                                                                    \
    ELEMENT(Button, btn_enter)                                                                     \
    ELEMENT(Button, btn_clearAll)                                                                  \
    ELEMENT(Button, btn_reset)                                                                     \
    /* Live reading panel */                                                                       \
    ELEMENT(View, view_reading)                                                                    \
    CONSTRAINT(reading_container_heightConstraint, view_reading)                                   \
    ELEMENT(TextField, usb_device_reading)                                                         \
    ELEMENT(View, view_deviceStatus)                                                               \
    ELEMENT(TextField, lbl_deviceStatus)                                                           \
    ELEMENT(Button, btn_connected)                                                                 \
    ELEMENT(Button, btn_disconnected)                                                              \
    /* Capture and rotation series */                                                              \
    ELEMENT(View, view_steadyLamp)                                                                 \
    ELEMENT(TextField, lbl_steadyState)                                                            \
    ELEMENT(View, view_capture)                                                                    \
    CONSTRAINT(capture_container_heightConstraint, view_capture)                                   \
    ELEMENT(StripChart, chart_reading)                                                             \
    ELEMENT(Button, btn_capture)                                                                   \
    ELEMENT(Button, btn_newStone)                                                                  \
    ELEMENT(Button, check_autoCapture, ButtonType::CheckBox)                                       \
    ELEMENT(TextField, lbl_captureNote)                                                            \
    ELEMENT(TextField, lbl_seriesValues)                                                           \
    ELEMENT(TextField, lbl_seriesLow)                                                              \
    ELEMENT(TextField, lbl_seriesHigh)                                                             \
    ELEMENT(TextField, lbl_seriesBirefringence)                                                    \
    ELEMENT(TextField, lbl_seriesVerdict)                                                          \
    ELEMENT(Button, btn_identifySeries)                                                            \
    ELEMENT(TabView, resultsTabs)                                                                  \
    /* Results and detail */                                                                       \
    ELEMENT(View, lbl_stonesListCaption)                                                           \
    ELEMENT(PopUpButton, btn_stonesList)                                                           \
    ELEMENT(TextField, lbl_stonesCount)                                                            \
    ELEMENT(TableView, tableView,                                                                  \
            std::vector<TableColumn>{{MainWindow::idColumn}, {"titleColumn"}})                     \
    ELEMENT(View, view_detailPanel)                                                                \
    ELEMENT(TextField, txt_RI)                                                                     \
    ELEMENT(TextField, txt_sg)                                                                     \
    ELEMENT(TextField, txt_hardness)                                                               \
    ELEMENT(TextField, txt_bierfence)                                                              \
    ELEMENT(TextField, txt_stroneFamily)                                                           \
    ELEMENT(TextView, txt_commonSource)                                                            \
    ELEMENT(TextView, txt_otherInformation)                                                        \
    ELEMENT(TextView, txt_otherProduct)                                                            \
    /* Records */                                                                                  \
    ELEMENT(Button, btn_saveRecord)

// The Best matches tab's elements, in resources/best_matches_page.ui, and the Records tab's, in
// resources/records_page.ui: their widgets are made the first time their tab is shown, since the
// first paint does not need them.
#define VELMORA_BEST_MATCHES_PAGE_ELEMENTS(ELEMENT)                                                \
    ELEMENT(TextField, lbl_bestMatchesNote)                                                        \
    ELEMENT(TableView, tbl_bestMatches,                                                            \
            std::vector<TableColumn>{{"fitColumn"}, {"candidateColumn"}, {"deviationsColumn"}})

#define VELMORA_RECORDS_PAGE_ELEMENTS(ELEMENT)                                                     \
    ELEMENT(TextField, txt_recordsFilter)                                                          \
    ELEMENT(TableView, tbl_records,                                                                \
            std::vector<TableColumn>{{"labelColumn"}, {"dateColumn"}, {"conclusionColumn"}})       \
    ELEMENT(TextView, txt_recordDetail)                                                            \
    ELEMENT(TextField, txt_recordNotes)                                                            \
    ELEMENT(PopUpButton, btn_recordConclusion)                                                     \
    ELEMENT(TextField, txt_recordConclusion)                                                       \
    ELEMENT(Button, btn_updateRecord)                                                              \
    ELEMENT(Button, btn_deleteRecord)                                                              \
    ELEMENT(Button, btn_exportRecords)                                                             \
    ELEMENT(Button, btn_reportRecords)                                                             \
    ELEMENT(Button, btn_printRecords)

#define VELMORA_MAIN_WINDOW_ELEMENTS(ELEMENT, CONSTRAINT)                                          \
    VELMORA_MAIN_FORM_ELEMENTS(ELEMENT, CONSTRAINT)                                                \
    VELMORA_BEST_MATCHES_PAGE_ELEMENTS(ELEMENT) VELMORA_RECORDS_PAGE_ELEMENTS(ELEMENT)
