// SPDX-License-Identifier: GPL-3.0-or-later
#include "arguments.h"
#include "command_table.h"

#include <platform/foundation/literals.h>

namespace brenvaldo::script {

namespace {

class PressCommand : public Command
{
public:
    using Command::Command;

    [[nodiscard]] Misunderstanding run(const QStringList& arguments) const override
    {
        const QString& action = arguments.first();
        const auto tag = tagIn(arguments.mid(1));
        if (!tag)
            return u"\"%1\" is no tag"_s.arg(arguments.last());
        switch (workspace().actions().send(action, {.tag = *tag})) {
        case controls::ActionRegistry::Sent::Unknown:
            return u"unknown action \"%1\""_s.arg(action);
        case controls::ActionRegistry::Sent::Ambiguous:
            return u"more than one class has the action \"%1\""_s.arg(action);
        case controls::ActionRegistry::Sent::Done:
        case controls::ActionRegistry::Sent::Raised:
            break;
        }
        return std::nullopt;
    }

private:
    [[nodiscard]] static std::optional<int> tagIn(const QStringList& words)
    {
        if (words.isEmpty())
            return 0;
        const QString prefix = u"tag="_s;
        bool isNumber = false;
        const int tag = words.first().mid(prefix.size()).toInt(&isNumber);
        if (!isNumber || !words.first().startsWith(prefix))
            return std::nullopt;
        return tag;
    }
};

class AnswerCommand : public Command
{
public:
    using Command::Command;

    [[nodiscard]] Misunderstanding run(const QStringList& arguments) const override
    {
        if (arguments == QStringList{u"cancel"_s}) {
            chooser().queueCancel();
            return std::nullopt;
        }
        QStringList paths;
        for (const QString& word : arguments)
            paths.append(absolutePath(word));
        chooser().queueAnswer(paths);
        return std::nullopt;
    }
};

class DefaultsCommand : public Command
{
public:
    using Command::Command;

    [[nodiscard]] Misunderstanding run(const QStringList& arguments) const override
    {
        const QString& key = arguments.first();
        if (arguments.size() > 1)
            defaults().set(key, arguments.at(1));
        else
            print(u"default"_s, {key, defaults().text(key)});
        return std::nullopt;
    }
};

} // namespace

void addProgramCommands(CommandTable& table, const ScriptContext& context)
{
    table.add(
        u"press"_s,
        {.usage = u"ACTION [tag=N]"_s, .least = 1, .most = 2},
        std::make_unique<PressCommand>(context)
    );
    table.add(
        u"answer"_s,
        {.usage = u"PATH... or answer cancel"_s,
         .least = 1,
         .most = CommandTable::Words::unlimited},
        std::make_unique<AnswerCommand>(context)
    );
    table.add(
        u"defaults"_s,
        {.usage = u"KEY [VALUE]"_s, .least = 1, .most = 2},
        std::make_unique<DefaultsCommand>(context)
    );
}

} // namespace brenvaldo::script
