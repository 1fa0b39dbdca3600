// SPDX-License-Identifier: GPL-3.0-or-later
#include "golden_image.h"

#include <platform/foundation/literals.h>

#include <algorithm>
#include <array>
#include <cstdlib>

namespace brenvaldo::test {

namespace {

struct Difference
{
    QImage picture; ///< differences of the samples, ten times as strong
    int largest = 0;
    qint64 visible = 0; ///< samples that differ by more than 1
    qint64 samples = 0;
};

Difference differenceOf(const QImage& first, const QImage& second)
{
    Difference difference{.picture = QImage(first.size(), QImage::Format_RGB32)};
    for (int y = 0; y < first.height(); ++y) {
        for (int x = 0; x < first.width(); ++x) {
            const QRgb a = first.pixel(x, y);
            const QRgb b = second.pixel(x, y);
            const std::array deltas{
                std::abs(qRed(a) - qRed(b)),
                std::abs(qGreen(a) - qGreen(b)),
                std::abs(qBlue(a) - qBlue(b))};
            for (const int delta : deltas) {
                difference.largest = std::max(difference.largest, delta);
                difference.visible += delta > 1 ? 1 : 0;
                ++difference.samples;
            }
            const auto stronger = [](int delta) { return std::min(255, delta * 10); };
            difference.picture.setPixel(
                x, y, qRgb(stronger(deltas[0]), stronger(deltas[1]), stronger(deltas[2]))
            );
        }
    }
    return difference;
}

} // namespace

testing::AssertionResult looksLike(const QImage& actual, const QString& name)
{
    constexpr int largestDelta = 3;
    constexpr qint64 samplesPerVisibleOne = 5000;
    const QString fileName = QString(name).replace(u'/', u'-') + u".png"_s;
    const QString actualFile = u"golden-actual-"_s + fileName;
    const QImage golden(QString::fromUtf8(BRENVALDO_GOLDEN_FOLDER "/") + name + u".png"_s);
    if (golden.size() != actual.size()) {
        actual.save(actualFile);
        return testing::AssertionFailure()
            << "no golden picture of that size, see " << qPrintable(actualFile);
    }
    const Difference difference = differenceOf(actual, golden);
    if (difference.largest <= largestDelta
        && difference.visible * samplesPerVisibleOne <= difference.samples)
        return testing::AssertionSuccess();
    actual.save(actualFile);
    difference.picture.save(u"golden-difference-"_s + fileName);
    return testing::AssertionFailure()
        << difference.visible << " of " << difference.samples << " samples differ, by up to "
        << difference.largest << ", see " << qPrintable(actualFile);
}

} // namespace brenvaldo::test
