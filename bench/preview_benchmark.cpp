// SPDX-License-Identifier: GPL-3.0-or-later
// A change of a control of the text watermark, up to the rendered preview of a decoded 24 MP photo.

#include "benchmark_main.h"

#include <examples/draw_photos/landscape.h>

#include <panels/watermark_panel.h>
#include <platform/foundation/literals.h>
#include <platform/foundation/paths.h>
#include <views/preview/preview_renderer.h>
#include <watermark/dv_watermark.h>
#include <workspace/preview/photo_preview.h>

#include <QElapsedTimer>
#include <QEventLoop>
#include <QTemporaryDir>

#include <algorithm>

using namespace brenvaldo;

namespace {

constexpr QSize photoSize(6000, 4000);
constexpr platform::graphics::PixelSize room{.width = 1000, .height = 700};
constexpr int changes = 50;

/// The panel, the photo and the renderer of a window.
class Preview
{
public:
    explicit Preview(QString path)
        : m_path(std::move(path))
    {
        panel.cbFontList.setTitles({u"DejaVu Sans"_s});
        panel.tvWaterMarkText.setStringValue(u"\u00a9 <[IMGFN]> <[IMGCD]>"_s);
        panel.tfFontSize.setStringValue(u"200"_s);
        panel.scWaterMarkPos.setSelectedSegment(4);
    }

    /// Draws the preview as the window does and waits for it.
    void draw()
    {
        QEventLoop loop;
        QObject::connect(&m_renderer, &views::PreviewRenderer::rendered, &loop, &QEventLoop::quit);
        m_renderer.render(
            {.photo = m_photos.photo(m_path),
             .overlay = m_mark.setWatermarkTextPreview(m_path),
             .room = room,
             .part = std::nullopt,
             .path = m_path}
        );
        loop.exec();
    }

    panels::WatermarkPanel panel;

private:
    QString m_path;
    workspace::PreviewPhotos m_photos;
    controls::ProgressIndicator m_bar{u"bar"_s};
    watermark::DVWatermark m_mark{
        {.panel = panel,
         .bar = m_bar,
         .outputName = platform::lastPathComponent,
         .previewPhoto = [this](const QString& path) { return m_photos.photo(path); }}};
    views::PreviewRenderer m_renderer;
};

using Set = void (*)(panels::WatermarkPanel&);

void changeAControl(benchmark::State& state, Set set)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"photo.jpg"_s);
    if (!examples::drawnLandscape(examples::scenes().front(), photoSize, 1).save(path, "JPG", 92))
        state.SkipWithError("no photo");
    Preview preview(path);
    set(preview.panel);
    preview.draw();
    std::vector<double> milliseconds;
    for ([[maybe_unused]] auto round : state) {
        QElapsedTimer timer;
        timer.start();
        preview.panel.tfXOffset.setStringValue(QString::number(milliseconds.size()));
        preview.draw();
        milliseconds.push_back(static_cast<double>(timer.nsecsElapsed()) / 1e6);
    }
    std::sort(milliseconds.begin(), milliseconds.end());
    state.counters["p95_ms"] = milliseconds[milliseconds.size() * 95 / 100];
}

void plain(panels::WatermarkPanel&) { }

void withShadow(panels::WatermarkPanel& panel)
{
    panel.cbShadowCheck.setState(1);
    panel.tfTextShadowRadius.setStringValue(u"20"_s);
}

void turned(panels::WatermarkPanel& panel) { panel.tfWMAngle.setStringValue(u"30"_s); }

void tiled(panels::WatermarkPanel& panel) { panel.cbTextPatternCheck.setState(1); }

void embossed(panels::WatermarkPanel& panel) { panel.pubWatermarkTextEffect.selectItemAtIndex(2); }

void embossedWithShadow(panels::WatermarkPanel& panel)
{
    embossed(panel);
    withShadow(panel);
}

void filledWithPhoto(panels::WatermarkPanel& panel)
{
    panel.pubWatermarkTextEffect.selectItemAtIndex(8);
}

BENCHMARK_CAPTURE(changeAControl, plain, plain)
    ->Iterations(changes)
    ->Unit(benchmark::kMillisecond)
    ->UseRealTime();
BENCHMARK_CAPTURE(changeAControl, withShadow, withShadow)
    ->Iterations(changes)
    ->Unit(benchmark::kMillisecond)
    ->UseRealTime();
BENCHMARK_CAPTURE(changeAControl, turned, turned)
    ->Iterations(changes)
    ->Unit(benchmark::kMillisecond)
    ->UseRealTime();
BENCHMARK_CAPTURE(changeAControl, tiled, tiled)
    ->Iterations(changes)
    ->Unit(benchmark::kMillisecond)
    ->UseRealTime();
BENCHMARK_CAPTURE(changeAControl, embossed, embossed)
    ->Iterations(changes)
    ->Unit(benchmark::kMillisecond)
    ->UseRealTime();
BENCHMARK_CAPTURE(changeAControl, embossedWithShadow, embossedWithShadow)
    ->Iterations(changes)
    ->Unit(benchmark::kMillisecond)
    ->UseRealTime();
BENCHMARK_CAPTURE(changeAControl, filledWithPhoto, filledWithPhoto)
    ->Iterations(changes)
    ->Unit(benchmark::kMillisecond)
    ->UseRealTime();

} // namespace

int main(int argc, char** argv) { return bench::run(argc, argv); }
