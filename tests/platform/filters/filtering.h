// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <platform/filters/filter.h>

#include <platform/foundation/literals.h>

#include <QImage>
#include <QList>

#include <gtest/gtest.h>

#include <utility>

namespace brenvaldo::test {

using NamedInputs = QList<std::pair<QString, platform::filters::InputValue>>;

inline QImage solidPicture(QRgb color, int width = 1, int height = 1)
{
    QImage picture(
        width, height, qAlpha(color) == 255 ? QImage::Format_RGB32 : QImage::Format_ARGB32
    );
    picture.fill(color);
    return picture;
}

inline platform::filters::FilterImage imageOf(const QImage& picture)
{
    return platform::filters::FilterImage(platform::graphics::Image::fromQImage(picture));
}

/// The picture after the filter of a name.
inline QImage filtered(const QString& name, const NamedInputs& inputs, const QImage& picture)
{
    auto filter = platform::filters::Filter::filterWithName(name);
    if (!filter)
        return {};
    const auto photo = platform::graphics::Image::fromQImage(picture);
    filter->setValue(u"inputImage"_s, platform::filters::FilterImage(photo));
    for (const auto& [input, value] : inputs)
        filter->setValue(input, value);
    return filter->outputImage()->toImage(photo).toQImage();
}

/// Differences of 1 are rounding.
inline testing::AssertionResult isNear(QRgb actual, QRgb expected)
{
    const auto differs = [](int a, int b) { return std::abs(a - b) > 1; };
    if (!differs(qRed(actual), qRed(expected)) && !differs(qGreen(actual), qGreen(expected))
        && !differs(qBlue(actual), qBlue(expected)) && !differs(qAlpha(actual), qAlpha(expected)))
        return testing::AssertionSuccess();
    return testing::AssertionFailure()
        << qRed(actual) << " " << qGreen(actual) << " " << qBlue(actual) << " " << qAlpha(actual)
        << " instead of " << qRed(expected) << " " << qGreen(expected) << " " << qBlue(expected)
        << " " << qAlpha(expected);
}

} // namespace brenvaldo::test
