#include "logedit/linecolors.h"

#include <cmath>

#include "logedit/parsedlog.h"

namespace quirn {

namespace {

constexpr double kLeastContrast = 4.5;
constexpr unsigned kSteps = 32;  // from a colour to black or white

std::optional<Color> GameColor(uint32_t type) {
    switch (type) {
        case kPublic: return Rgb(173, 173, 214);
        case kSystem: return Rgb(0, 178, 160);
        case kKill: return Rgb(160, 160, 160);
        case kPrivate: return Rgb(82, 214, 58);
        case kTeam: return Rgb(230, 222, 0);
        case kFreq: return Rgb(90, 165, 255);
        case kSquad: return Rgb(255, 82, 82);
        case kChannel1: return Rgb(255, 148, 33);
        case kChannel2: return Rgb(214, 123, 74);
        case kChannel3: return Rgb(255, 107, 181);
        case kChannel4: return Rgb(189, 115, 255);
        default: return std::nullopt;
    }
}

unsigned Part(Color color, unsigned shift) {
    return color >> shift & 0xFF;
}

// Of 0 to 255, as bright as the eye sees it; 0 to 1.
double Linear(unsigned part) {
    const double value = part / 255.0;
    return value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
}

double Luminance(Color color) {
    return 0.2126 * Linear(Part(color, 0)) + 0.7152 * Linear(Part(color, 8)) + 0.0722 * Linear(Part(color, 16));
}

double Contrast(double one, double other) {
    return one > other ? (one + 0.05) / (other + 0.05) : (other + 0.05) / (one + 0.05);
}

Color Shifted(Color color, unsigned end, unsigned step) {
    const auto part = [&](unsigned shift) { return (Part(color, shift) * (kSteps - step) + end * step) / kSteps; };
    return Rgb(part(0), part(8), part(16));
}

}  // namespace

std::optional<Color> ColorOfType(uint32_t type, Color background) {
    const std::optional<Color> color = GameColor(type);
    if (!color) return std::nullopt;
    const double back = Luminance(background);
    // On any background one of the two is far enough away.
    const unsigned end = Contrast(back, 0) > Contrast(back, 1) ? 0 : 255;
    unsigned step = 0;
    while (step < kSteps && Contrast(Luminance(Shifted(*color, end, step)), back) < kLeastContrast) ++step;
    return Shifted(*color, end, step);
}

}  // namespace quirn
