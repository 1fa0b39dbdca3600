// SPDX-License-Identifier: GPL-3.0-or-later
#include <files/usable_name.h>
#include <platform/foundation/exceptions.h>
#include <platform/foundation/log.h>
#include <presets/action_chain.h>
#include <presets/action_run.h>

#include <cstdlib>

using namespace Qt::StringLiterals;
using namespace brenvaldo;

namespace {

controls::ArrayController emptyList() { return {u"cActionsTWMArrayController"_s, {u"cActions"_s}}; }

bool isUsable(const QString& name)
{
    return name.toUtf8().size() <= 255 && !name.contains(u'/') && name != u"." && name != u"..";
}

/// A name that the rows make can't leave its folder; a row that lacks fields raises a range error.
void run(const QList<QStringList>& rows)
{
    try {
        const QString name = presets::renamedByActions(u"/missing/a b.jpg"_s, u"a b.jpg"_s, rows);
        if (!isUsable(files::usableName(name)))
            std::abort();
    } catch (const platform::RangeError&) {
    }
}

/// What a preset keeps of a list comes back the same.
void keep(const controls::ArrayController& list)
{
    controls::ArrayController again = emptyList();
    const QString chain = presets::chainText(list);
    presets::loadChain(chain, again);
    if (presets::chainText(again) != chain)
        std::abort();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    platform::setLogSink([](const QString&) {});
    const QString text = QString::fromUtf8(
        QByteArrayView(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size))
    );
    run({{u"file\t \t"_s + text}});
    controls::ArrayController list = emptyList();
    presets::loadChain(text, list);
    run(list.arrangedObjects());
    keep(list);
    return 0;
}
