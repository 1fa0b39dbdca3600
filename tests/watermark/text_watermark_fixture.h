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

/// A panel set to two white blocks in the middle, and runs on photos in a folder of its own.
class TextWatermark : public testing::Test
{
protected:
    TextWatermark()
    {
        panel.cbFontList.setTitles({u"DejaVu Sans Mono"_s});
        panel.tvWaterMarkText.setStringValue(u"\u2588\u2588"_s);
        panel.tfFontSize.setStringValue(u"20"_s);
        panel.tfFontTransparancy.setStringValue(u"0"_s);
        panel.scWaterMarkPos.setSelectedSegment(4);
    }

    ~TextWatermark() override { platform::setLogSink({}); }

    QString run(const QStringList& photos, const QString& outputType = u"public.png"_s)
    {
        return mark.setWatermarkText(
            {.photos = photos,
             .destination = folder.path(),
             .outputType = outputType,
             .compressionLevel = u"9"_s,
             .fileNameText = {},
             .photoProperty = 0},
            sink
        );
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
