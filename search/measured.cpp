#include "search/measured.h"

#include <cmath>

namespace velmora {

double precisionOf(std::string_view cNumber) {
    const auto point = cNumber.find('.');
    const auto decimals = point == std::string_view::npos ? 0 : cNumber.size() - point - 1;
    return 0.5 * std::pow(10.0, -static_cast<double>(decimals));
}

} // namespace velmora
