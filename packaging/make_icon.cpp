// Draws the product's logo as the desktop's 48-pixel icon: make_icon ICON.png
//
// With another picture of that size it says instead whether the two look the same: make_icon --compare PICTURE.png

#include "look/artwork.h"

#include <QImage>

#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace {

constexpr int Side = 48;

/// The mean difference of the channels of all pixels, from 0 to 255; colours count as much as they cover.
double Difference(const QImage& one, const QImage& other)
{
    if (one.size() != other.size())
        return 255;
    constexpr auto format = QImage::Format_ARGB32_Premultiplied;
    const QImage first = one.convertToFormat(format);
    const QImage second = other.convertToFormat(format);
    double sum = 0;
    for (qsizetype byte = 0; byte < first.sizeInBytes(); ++byte)
        sum += std::abs(first.constBits()[byte] - second.constBits()[byte]);
    return sum / static_cast<double>(first.sizeInBytes());
}

} // namespace

int main(int count, char** arguments)
{
    if (count == 2)
        return LogoImage(Side).save(QString::fromLocal8Bit(arguments[1])) ? 0 : 1;
    if (count != 3 || std::strcmp(arguments[1], "--compare") != 0) {
        std::fputs("Usage: make_icon ICON.png | make_icon --compare PICTURE.png\n", stderr);
        return 2;
    }
    // Another renderer smooths the edges a little differently.
    constexpr double same = 2;
    const double difference = Difference(LogoImage(Side), QImage(QString::fromLocal8Bit(arguments[2])));
    std::printf("The pictures differ by %.2f of 255.\n", difference);
    return difference < same ? 0 : 1;
}
