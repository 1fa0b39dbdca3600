// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "watermark_fixture.h"

namespace brenvaldo::test {

/// A panel set to two white blocks in the middle.
class TextWatermark : public WatermarkFixture
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

    QString run(const QStringList& photos, const QString& outputType = u"public.png"_s)
    {
        return mark.setWatermarkText(runOf(photos, outputType), sink);
    }
};

} // namespace brenvaldo::test
