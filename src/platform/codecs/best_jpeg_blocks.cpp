// SPDX-License-Identifier: GPL-3.0-or-later
#include "best_jpeg_blocks.h"

#include <platform/graphics/vector_loop.h>

#include <algorithm>
#include <cmath>
#include <cstring>
#include <numbers>

namespace brenvaldo::platform::codecs {

namespace {

constexpr std::size_t side = BlockRow::side;
constexpr std::size_t rowWidth = BlockRow::width;

using Plane = BlockRow::Plane;
using Matrix = std::array<std::array<float, side>, side>;

/// The cosine transform of eight samples: its row k yields the k-th frequency.
Matrix cosines()
{
    Matrix matrix{};
    for (std::size_t k = 0; k < side; ++k) {
        const double scale = k == 0 ? std::sqrt(0.125) : 0.5;
        for (std::size_t i = 0; i < side; ++i) {
            const double angle = static_cast<double>((2 * i + 1) * k) * std::numbers::pi / 16;
            matrix[k][i] = static_cast<float>(scale * std::cos(angle));
        }
    }
    return matrix;
}

Matrix transposed(const Matrix& matrix)
{
    Matrix result{};
    for (std::size_t k = 0; k < side; ++k) {
        for (std::size_t i = 0; i < side; ++i)
            result[i][k] = matrix[k][i];
    }
    return result;
}

/// Each column times `matrix`.
BRENVALDO_VECTOR_LOOP void mixColumns(const Matrix& matrix, const Plane& in, Plane& out)
{
    for (std::size_t k = 0; k < side; ++k) {
        for (std::size_t x = 0; x < rowWidth; ++x) {
            float sum = 0;
            for (std::size_t i = 0; i < side; ++i)
                sum += matrix[k][i] * in[i][x];
            out[k][x] = sum;
        }
    }
}

/// Eight samples that are computed at once.
using Eight [[gnu::vector_size(side * sizeof(float))]] = float;

/// Each row of each square times the matrix whose transposed one is `transposed`.
BRENVALDO_VECTOR_LOOP void mixRows(const Matrix& transposed, const Plane& in, Plane& out)
{
    Eight rows[side];
    std::memcpy(rows, transposed.data(), sizeof rows);
    for (std::size_t y = 0; y < side; ++y) {
        for (std::size_t x = 0; x < rowWidth; x += side) {
            Eight sums = {};
            for (std::size_t i = 0; i < side; ++i)
                sums += rows[i] * in[y][x + i];
            std::memcpy(&out[y][x], &sums, sizeof sums);
        }
    }
}

BRENVALDO_VECTOR_LOOP void roundAll(Plane& plane)
{
    for (auto& row : plane) {
        for (float& value : row)
            value = std::floor(value + 0.5F);
    }
}

inline float level(float value)
{
    return std::min(std::max(std::floor(value + 0.5F), 0.0F), 255.0F);
}

BRENVALDO_VECTOR_LOOP void roundToLevels(Plane& plane)
{
    for (auto& row : plane) {
        for (float& value : row)
            value = level(value);
    }
}

constexpr float neutral = 128; // level of a colour difference of 0

BRENVALDO_VECTOR_LOOP void toBrightnessAndDifferences(BlockRow& pixels)
{
    auto& [reds, greens, blues] = pixels.planes;
    for (std::size_t y = 0; y < side; ++y) {
        for (std::size_t x = 0; x < rowWidth; ++x) {
            const float red = reds[y][x];
            const float green = greens[y][x];
            const float blue = blues[y][x];
            reds[y][x] = level(0.299F * red + 0.587F * green + 0.114F * blue);
            greens[y][x] = level(neutral - 0.168736F * red - 0.331264F * green + 0.5F * blue);
            blues[y][x] = level(neutral + 0.5F * red - 0.418688F * green - 0.081312F * blue);
        }
    }
}

BRENVALDO_VECTOR_LOOP void toColors(BlockRow& pixels)
{
    auto& [brightnesses, blueDifferences, redDifferences] = pixels.planes;
    for (std::size_t y = 0; y < side; ++y) {
        for (std::size_t x = 0; x < rowWidth; ++x) {
            const float brightness = brightnesses[y][x];
            const float ofBlue = blueDifferences[y][x] - neutral;
            const float ofRed = redDifferences[y][x] - neutral;
            brightnesses[y][x] = level(brightness + 1.402F * ofRed);
            blueDifferences[y][x] = level(brightness - 0.344136F * ofBlue - 0.714136F * ofRed);
            redDifferences[y][x] = level(brightness + 1.772F * ofBlue);
        }
    }
}

/// To frequencies, whose fractions are dropped, and back.
void code(Plane& plane)
{
    static const Matrix forth = cosines();
    static const Matrix back = transposed(forth);
    thread_local Plane mixed;
    mixColumns(forth, plane, mixed);
    mixRows(back, mixed, plane);
    roundAll(plane);
    mixColumns(back, plane, mixed);
    mixRows(forth, mixed, plane);
    roundToLevels(plane);
}

} // namespace

void passThroughJpeg(BlockRow& pixels)
{
    toBrightnessAndDifferences(pixels);
    for (Plane& plane : pixels.planes)
        code(plane);
    toColors(pixels);
}

} // namespace brenvaldo::platform::codecs
