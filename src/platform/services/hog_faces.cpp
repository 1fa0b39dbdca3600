// SPDX-License-Identifier: GPL-3.0-or-later
#include "hog_faces.h"

#include <algorithm>
#include <iterator>

#include <dlib/image_processing/frontal_face_detector.h>

namespace brenvaldo::platform::services {

namespace {

/// Above the detector's own 0: at 0.1 the false faces of a group go, and hardly a true one.
constexpr double threshold = 0.1;

using Detector = dlib::frontal_face_detector;

const Detector& trainedDetector()
{
    static const Detector detector = dlib::get_frontal_face_detector();
    return detector;
}

dlib::array2d<unsigned char> pixelsOf(const QImage& gray)
{
    dlib::array2d<unsigned char> pixels(gray.height(), gray.width());
    for (int y = 0; y < gray.height(); ++y)
        std::copy_n(gray.constScanLine(y), gray.width(), &pixels[y][0]);
    return pixels;
}

QRect boxOf(const dlib::rectangle& found)
{
    return QRect(
        QPoint(static_cast<int>(found.left()), static_cast<int>(found.top())),
        QPoint(static_cast<int>(found.right()), static_cast<int>(found.bottom()))
    );
}

} // namespace

std::vector<QRect> hogFaces(const QImage& gray)
{
    Detector detector = trainedDetector(); // it keeps its work, so each thread has its own
    const std::vector<dlib::rectangle> found = detector(pixelsOf(gray), threshold);
    std::vector<QRect> boxes;
    std::transform(found.begin(), found.end(), std::back_inserter(boxes), boxOf);
    return boxes;
}

} // namespace brenvaldo::platform::services
