#include "data/stones.h"

namespace velmora {

const std::array<std::string Stones::*, Stones::fieldCount> Stones::members = {
    &Stones::StoneID,      &Stones::StoneName,    &Stones::SgAverage,
    &Stones::SgMin,        &Stones::SgMax,        &Stones::SgRange,
    &Stones::Ri,           &Stones::RiMin,        &Stones::RiMax,
    &Stones::Hardness,     &Stones::HMin,         &Stones::Hmax,
    &Stones::StonenameUSB, &Stones::SgAverageUSB, &Stones::Birefringence,
    &Stones::StoneFamily,  &Stones::NEW,          &Stones::BirefMin,
    &Stones::BirefMax,     &Stones::Description1, &Stones::Description2,
    &Stones::Description3, &Stones::Color1,       &Stones::Color2,
    &Stones::Color3,       &Stones::Color4,       &Stones::Color5,
    &Stones::Color6,
};

} // namespace velmora
