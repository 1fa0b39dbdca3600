// SPDX-License-Identifier: GPL-3.0-or-later
#include "arguments.h"
#include "command_table.h"

#include <platform/foundation/literals.h>

namespace brenvaldo::script {

namespace {

QString noPhoto(const QString& word) { return u"no photo at index %1"_s.arg(word); }

class OpenCommand : public Command
{
public:
    using Command::Command;

    [[nodiscard]] Misunderstanding run(const QStringList& arguments) const override
    {
        QStringList paths;
        for (const QString& word : arguments)
            paths.append(absolutePath(word));
        workspace().openFiles(paths);
        return std::nullopt;
    }
};

class SelectCommand : public Command
{
public:
    using Command::Command;

    [[nodiscard]] Misunderstanding run(const QStringList& arguments) const override
    {
        if (arguments.first() == u"none") {
            workspace().photos().select(std::nullopt);
            return std::nullopt;
        }
        const auto index = indexBelow(workspace().photos().count(), arguments.first());
        if (!index)
            return noPhoto(arguments.first());
        workspace().photos().select(index);
        return std::nullopt;
    }
};

class TickCommand : public Command
{
public:
    using Command::Command;

    [[nodiscard]] Misunderstanding run(const QStringList& arguments) const override
    {
        workspace::PhotoList& photos = workspace().photos();
        const auto index = indexBelow(photos.count(), arguments.at(0));
        if (!index)
            return noPhoto(arguments.at(0));
        const auto tick = flag(arguments.at(1));
        if (!tick)
            return u"a tick is 0 or 1, not \"%1\""_s.arg(arguments.at(1));

        photos.setTick(*index, *tick);
        workspace().actions().send(u"cCollectionViewController.cbPhotoToProcessClicked"_s);
        return std::nullopt;
    }
};

class PhotosCommand : public Command
{
public:
    using Command::Command;

    [[nodiscard]] Misunderstanding run(const QStringList& /*arguments*/) const override
    {
        int index = 0;
        for (const workspace::cCollectionViewItem& entry : workspace().photos().entries()) {
            print(
                u"photo"_s,
                {QString::number(index++),
                 QString::number(entry.myPhotoSelect),
                 QString::number(entry.myRenameSelect),
                 entry.myPhotoOrientation,
                 entry.myPhotoPxSize,
                 entry.myPhotoName,
                 entry.myNewName,
                 entry.myPhotoDescription}
            );
        }
        return std::nullopt;
    }
};

} // namespace

void addListCommands(CommandTable& table, const ScriptContext& context)
{
    table.add(
        u"open"_s,
        {.usage = u"PATH..."_s, .least = 1, .most = CommandTable::Words::unlimited},
        std::make_unique<OpenCommand>(context)
    );
    table.add(
        u"select"_s,
        {.usage = u"INDEX or select none"_s, .least = 1, .most = 1},
        std::make_unique<SelectCommand>(context)
    );
    table.add(
        u"tick"_s,
        {.usage = u"INDEX 0/1"_s, .least = 2, .most = 2},
        std::make_unique<TickCommand>(context)
    );
    table.add(u"photos"_s, {}, std::make_unique<PhotosCommand>(context));
}

} // namespace brenvaldo::script
