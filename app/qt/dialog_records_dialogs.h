#pragma once

// The Records view's questions as the desktop's own dialogs, over the main window.

#include "ui/records_services.h"

class QWidget;

namespace velmora::qt {

class DialogRecordsDialogs final : public RecordsDialogs {
public:
    explicit DialogRecordsDialogs(QWidget* parent) : parent_(parent) {}

    std::optional<std::string> askLabel() override;
    std::optional<std::filesystem::path> chooseSaveFile(const std::string& title,
                                                        const std::string& suggestedName) override;

private:
    QWidget* parent_;
};

} // namespace velmora::qt
