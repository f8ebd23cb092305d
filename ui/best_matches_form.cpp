#include "ui/view_controller.h"

namespace velmora {

void ViewController::btn_overTheLimit_tap(Button&) {
    rankBestMatches();
}

// The weighing fills the S.G. entry, so the strict search uses the same S.G. as the ranking.
void ViewController::rankBestMatches() {
    const DecimalSeparators separators = decimalSeparators();
    const WeighingReading weighing =
        readWeighing(txt_weightAir.text(), txt_weightWater.text(), separators);
    if (!weighing.note.empty()) {
        bestMatches_.clear(weighing.note);
        return;
    }
    if (weighing.sgText) {
        txt_leftSG.setText(*weighing.sgText);
    }
    bestMatches_.show(rankingForm(), separators);
}

void ViewController::enterRotationReadings(double low, double high) {
    check_RI.setState(ButtonState::On);
    btn_checkBox_tap(check_RI);
    txt_leftRIReading.setText(readingText(low, decimalSeparator));
    txt_leftRIHigh.setText(readingText(high, decimalSeparator));
    rankBestMatches();
}

RankingForm ViewController::rankingForm() const {
    return {.isRIState = isRIState,
            .isSGState = isSGState,
            .isHardnessState = isHardnessState,
            .isNameState = isNameState,
            .isColorState = isColorState,
            .overTheLimit = check_overTheLimit.state() == ButtonState::On,
            .riText = txt_leftRIReading.text(),
            .riHighText = txt_leftRIHigh.text(),
            .sgText = txt_leftSG.text(),
            .hardnessText = txt_leftHardness.text(),
            .nameText = txt_left_name.text(),
            .selectedColor = selectedColor,
            .weightAirText = txt_weightAir.text(),
            .weightWaterText = txt_weightWater.text()};
}

} // namespace velmora
