// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine.h"

#include <platform/foundation/log.h>

#include <vips/vips8>

namespace brenvaldo::platform {

namespace {

void logEngineMessage(
    const gchar* domain, GLogLevelFlags /*level*/, const gchar* message, gpointer /*data*/
)
{
    log(QString::fromUtf8(domain) + QStringLiteral(": ") + QString::fromUtf8(message));
}

} // namespace

Engine::Engine()
{
    vips_init("brenvaldo");
    vips_cache_set_max(0);
    // The generic decoders behind these classes are slow and unsafe; every format we read has its
    // own.
    vips_operation_block_set("VipsForeignLoadMagick", TRUE);
    g_log_set_handler(
        "VIPS",
        static_cast<GLogLevelFlags>(G_LOG_LEVEL_ERROR | G_LOG_LEVEL_CRITICAL | G_LOG_LEVEL_WARNING),
        logEngineMessage,
        nullptr
    );
}

Engine::~Engine() { vips_shutdown(); }

int engineThreads() { return vips_concurrency_get(); }

} // namespace brenvaldo::platform
