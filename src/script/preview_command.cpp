// SPDX-License-Identifier: GPL-3.0-or-later
#include "arguments.h"
#include "command_table.h"

#include <platform/codecs/image_destination.h>
#include <platform/foundation/literals.h>
#include <platform/storage/atomic_file.h>

namespace brenvaldo::script {

namespace {

bool writePng(const platform::graphics::Image& picture, const QString& path)
{
    platform::storage::AtomicFile file(path);
    return file.isValid()
        && platform::codecs::encode(
               picture, platform::codecs::FileFormat::Png, {}, file.temporaryPath()
        )
        && file.commit();
}

/// False for a damaged photo, which leaves the preview area empty.
bool canBeDrawn(const platform::graphics::Image& picture)
{
    return picture.copiedToMemory().has_value();
}

class PreviewCommand : public Command
{
public:
    using Command::Command;

    [[nodiscard]] Misunderstanding run(const QStringList& arguments) const override
    {
        const auto picture = workspace().composedPreview();
        const QString path = absolutePath(arguments.first());
        const bool isWritten = picture && writePng(*picture, path);
        if (picture && !isWritten && canBeDrawn(*picture))
            return u"the preview can't be written to \"%1\""_s.arg(path);
        print(u"preview"_s, {isWritten ? u"shown"_s : u"empty"_s});
        return std::nullopt;
    }
};

} // namespace

void addPreviewCommand(CommandTable& table, const ScriptContext& context)
{
    table.add(
        u"preview"_s,
        {.usage = u"FILE"_s, .least = 1, .most = 1},
        std::make_unique<PreviewCommand>(context)
    );
}

} // namespace brenvaldo::script
