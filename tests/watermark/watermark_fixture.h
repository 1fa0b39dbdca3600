// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <platform/foundation/literals.h>
#include <watermark/dv_watermark.h>

#include <panels/watermark_panel.h>
#include <platform/foundation/log.h>
#include <platform/foundation/paths.h>
#include <support/photo_builder.h>
#include <support/saving_sink.h>
#include <support/temporary_folder.h>

#include <platform/codecs/image_source.h>

#include <gtest/gtest.h>

namespace brenvaldo::test {

/// A watermark panel, and runs on photos in a folder of its own.
class WatermarkFixture : public testing::Test
{
protected:
    ~WatermarkFixture() override { platform::setLogSink({}); }

    [[nodiscard]] watermark::WatermarkRun
    runOf(const QStringList& photos, const QString& outputType) const
    {
        return {
            .photos = photos,
            .destination = folder.path(),
            .outputType = outputType,
            .compressionLevel = u"9"_s,
            .fileNameText = {},
            .photoProperty = 0};
    }

    QString darkPhoto(const QString& name)
    {
        return PhotoBuilder().size(120, 80).solid({10, 20, 30}).write(sources.path(name));
    }

    TemporaryFolder sources;
    TemporaryFolder folder;
    panels::WatermarkPanel panel;
    controls::ProgressIndicator bar{u"bar"_s};
    QString chainPrefix;
    SavingSink sink;
    const QList<FinishedPhoto>& done = sink.done;
    std::function<std::optional<platform::graphics::Image>(const QString&)> previewPhoto
        = [](const QString& path) -> std::optional<platform::graphics::Image> {
        const auto source = platform::codecs::ImageSource::open(path);
        if (!source)
            return std::nullopt;
        return source->uprightImage(
            {.access = platform::codecs::ImageSource::Access::Random, .atLeast = {}}
        );
    };
    watermark::DVWatermark mark{
        {.panel = panel,
         .bar = bar,
         .outputName
         = [this](const QString& path) { return chainPrefix + platform::lastPathComponent(path); },
         .previewPhoto = [this](const QString& path) { return previewPhoto(path); }}};
};

} // namespace brenvaldo::test
