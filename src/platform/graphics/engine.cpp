// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine.h"

#include <platform/foundation/literals.h>
#include <platform/foundation/log.h>

#include <vips/vips8>

#include <QImageReader>

#include <algorithm>
#include <array>
#include <mutex>

namespace brenvaldo::platform::graphics {

namespace {

thread_local int toldMadeUpParts = 0;

/// Warnings of the TIFF decoder, which goes on behind them with grey, white or shifted pixels.
bool tellsOfMadeUpPixels(const QString& warning)
{
    constexpr std::array texts = {
        "premature end of data segment",
        "Premature end of JPEG file",
        "instead of RST",
        "Inconsistent progression sequence",
        "bad Huffman code",
        "Premature EOL",
        "Line length mismatch",
        "to avoid buffer overrun",
    };
    return std::any_of(texts.begin(), texts.end(), [&](const char* text) {
        return warning.contains(QLatin1String(text));
    });
}

/// Logs a warning of the engine; one that a damaged file repeats is logged once in a row.
void logEngineMessage(
    const gchar* domain, GLogLevelFlags /*level*/, const gchar* message, gpointer /*data*/
)
{
    static std::mutex mutex;
    static QString lastLine;
    const QString text = QString::fromUtf8(message).simplified();
    if (tellsOfMadeUpPixels(text))
        ++toldMadeUpParts;
    const QString line = QString::fromUtf8(domain) + u": "_s + text;
    const std::lock_guard lock(mutex);
    if (text.isEmpty() || line == lastLine)
        return;
    lastLine = line;
    log(line);
}

/// The engine goes on with a size of 1 in the place of one that it can't take.
bool tellsOfMadeUpSize(const QString& warning)
{
    return warning.contains(QLatin1String("out of range for property"));
}

/// Other libraries than the engine: what stops the program is told, notes on themselves are not.
void logWhatIsSevere(const gchar* domain, GLogLevelFlags level, const gchar* message, gpointer data)
{
    if (tellsOfMadeUpSize(QString::fromUtf8(message)))
        ++toldMadeUpParts;
    if ((level & (G_LOG_LEVEL_ERROR | G_LOG_LEVEL_CRITICAL)) != 0)
        logEngineMessage(domain, level, message, data);
}

} // namespace

Engine::Engine()
{
    vips_init("brenvaldo");
    g_log_set_default_handler(logWhatIsSevere, nullptr);
    vips_cache_set_max(0);
    // The generic decoders behind these classes are slow and unsafe; every format we read has its
    // own.
    vips_operation_block_set("VipsForeignLoadMagick", TRUE);
    // Qt refuses pictures from 33 megapixels on; sizes are checked before anything is decoded.
    QImageReader::setAllocationLimit(0);
    g_log_set_handler(
        "VIPS",
        static_cast<GLogLevelFlags>(G_LOG_LEVEL_ERROR | G_LOG_LEVEL_CRITICAL | G_LOG_LEVEL_WARNING),
        logEngineMessage,
        nullptr
    );
}

Engine::~Engine() { vips_shutdown(); }

int madeUpParts() { return toldMadeUpParts; }

int engineThreads() { return vips_concurrency_get(); }

} // namespace brenvaldo::platform::graphics
