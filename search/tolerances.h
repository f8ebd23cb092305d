#pragma once

// The settings of the ranked identification: how far a reading may lie outside a stone's range
// and still count as fitting, and where the instrument stops reading.

namespace velmora {

struct RankingSettings {
    // About what a contact-liquid refractometer and a hydrostatic balance read to.
    double riTolerance = 0.002;
    double birefringenceTolerance = 0.003;
    double sgTolerance = 0.02;
    // Scratch tests come in half steps of the Mohs scale at best.
    double hardnessTolerance = 0.5;
    // The contact liquid's index: above it the instrument shows no shadow edge.
    double overTheLimit = 1.810;
};

} // namespace velmora
