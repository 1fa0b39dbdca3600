// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <platform/foundation/literals.h>
#include <script/script_program.h>

#include <support/temporary_folder.h>
#include <support/text_printing.h>

#include <gmock/gmock.h>

#include <sstream>

namespace brenvaldo::test {

/// Runs scripts in a program whose files all live in a temporary folder.
class ScriptTest : public testing::Test
{
protected:
    struct Outcome
    {
        int status = 0;
        QStringList lines; ///< what was printed, without line feeds
        QString errors;
    };

    ScriptTest()
    {
        qputenv("XDG_DATA_HOME", m_folder.path(u"data"_s).toUtf8());
        qputenv("XDG_CONFIG_HOME", m_folder.path(u"config"_s).toUtf8());
    }

    /// The folder of this test's photos and outputs; ends in "/".
    [[nodiscard]] QString folder() const { return m_folder.path(); }
    [[nodiscard]] const TemporaryFolder& files() const { return m_folder; }

    /// Runs `script`, as from the standard input, in a program of its own.
    [[nodiscard]] static Outcome run(const QString& script) { return run(script, {}); }

    /// Runs the scripts in `scriptFiles`, one after the other in one program.
    [[nodiscard]] static Outcome runFiles(const QStringList& scriptFiles)
    {
        return run(QString(), scriptFiles);
    }

    /// The lines of a script joined to one text.
    [[nodiscard]] static QString lines(const QStringList& lines)
    {
        return lines.join(QLatin1Char('\n')) + QLatin1Char('\n');
    }

private:
    [[nodiscard]] static Outcome run(const QString& script, const QStringList& scriptFiles)
    {
        std::istringstream in(script.toStdString());
        std::ostringstream out;
        std::ostringstream errors;
        const int status
            = script::runScripts(scriptFiles, {.in = in, .out = out, .errors = errors});
        return {
            .status = status,
            .lines = QString::fromStdString(out.str()).split(QLatin1Char('\n'), Qt::SkipEmptyParts),
            .errors = QString::fromStdString(errors.str()),
        };
    }

    TemporaryFolder m_folder;
};

} // namespace brenvaldo::test
