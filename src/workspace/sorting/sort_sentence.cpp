// SPDX-License-Identifier: GPL-3.0-or-later
#include "sort_sentence.h"

#include <platform/foundation/literals.h>

#include <QStringList>

#include <array>

namespace brenvaldo::workspace {

namespace {

QString title(const controls::PopUpButton& popUp) { return popUp.titleOfSelectedItem(); }

/// "Width in pixels" in the middle of a sentence; "EXIF" stays as it is.
QString inSentence(const QString& title)
{
    const bool isWord = title.size() > 1 && title.at(1).isLower();
    return isWord ? title.first(1).toLower() + title.sliced(1) : title;
}

QString quoted(const controls::TextField& value)
{
    const QString& text = value.stringValue();
    return text.isEmpty() ? u"\u2026"_s : u"\u201c"_s + text + u'\u201d';
}

QStringList criteria(const panels::BatchSortControls& panel)
{
    QStringList clauses;
    if (panel.cbImagePropChoice.isOn())
        clauses += u"whose %1 %2 %3"_s.arg(
            inSentence(title(panel.pubImageProp)),
            title(panel.pubImagePropSelector),
            quoted(panel.tfImagePropVar)
        );
    if (panel.cbFileNameChoice.isOn())
        clauses += u"whose %1 %2 %3"_s.arg(
            inSentence(title(panel.pubFileName)),
            title(panel.pubFileNameSelector),
            quoted(panel.tfFileNameVar)
        );
    if (panel.cbFileTagChoice.isOn())
        clauses += u"whose label %1 %2"_s.arg(
            title(panel.pubFileTagIsNot), inSentence(title(panel.pubFileTag))
        );
    return clauses;
}

QString folder(const panels::BatchSortControls& panel)
{
    const QString& path = panel.tfBatchSortDestFolder.stringValue();
    return path.isEmpty() ? u"a folder that is still to be chosen"_s : path;
}

} // namespace

QString sortSentence(const panels::BatchSortControls& panel)
{
    const QString place = folder(panel);
    const std::array<std::pair<QString, QString>, 4> sentences{{
        {u"Copies files "_s, u" to "_s + place},
        {u"Moves files "_s, u" to "_s + place},
        {u"Makes aliases of files "_s, u" in "_s + place},
        {u"Moves files "_s, u" to the trash"_s},
    }};
    const QStringList clauses = criteria(panel);
    if (clauses.isEmpty())
        return u"No criterion is ticked: no file would be touched."_s;
    const auto handling = static_cast<std::size_t>(panel.pubFileHandlingSelector.selectedIndex());
    if (handling >= sentences.size())
        return u"Nothing is chosen to do with the files."_s;
    const auto& [begin, end] = sentences.at(handling);
    return begin + clauses.join(u" and "_s) + end + u'.';
}

} // namespace brenvaldo::workspace
