// SPDX-License-Identifier: GPL-3.0-or-later
#include "arguments.h"
#include "command_table.h"

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
            return QStringLiteral("\"%1\" is no tag").arg(arguments.last());
        switch (workspace().actions().send(action, {.tag = *tag})) {
        case controls::ActionRegistry::Sent::Unknown:
            return QStringLiteral("unknown action \"%1\"").arg(action);
        case controls::ActionRegistry::Sent::Ambiguous:
            return QStringLiteral("more than one class has the action \"%1\"").arg(action);
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
        const QString prefix = QStringLiteral("tag=");
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
        if (arguments == QStringList{QStringLiteral("cancel")}) {
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
            print(QStringLiteral("default"), {key, defaults().text(key)});
        return std::nullopt;
    }
};

} // namespace

void addProgramCommands(CommandTable& table, const ScriptContext& context)
{
    table.add(
        QStringLiteral("press"),
        {.usage = QStringLiteral("ACTION [tag=N]"), .least = 1, .most = 2},
        std::make_unique<PressCommand>(context)
    );
    table.add(
        QStringLiteral("answer"),
        {.usage = QStringLiteral("PATH... or answer cancel"),
         .least = 1,
         .most = CommandTable::Words::unlimited},
        std::make_unique<AnswerCommand>(context)
    );
    table.add(
        QStringLiteral("defaults"),
        {.usage = QStringLiteral("KEY [VALUE]"), .least = 1, .most = 2},
        std::make_unique<DefaultsCommand>(context)
    );
}

} // namespace brenvaldo::script
