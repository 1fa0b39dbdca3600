// SPDX-License-Identifier: GPL-3.0-or-later
#include "surroundings.h"

#include <platform/foundation/literals.h>

#include <QByteArrayList>
#include <QDir>

#include <algorithm>

#include <unistd.h>

namespace brenvaldo::test {

namespace {

bool isKept(const QByteArray& variable)
{
    static const QByteArrayList starts
        = {"PATH", "TMPDIR", "LD_", "GTEST_", "ASAN_", "LSAN_", "TSAN_", "UBSAN_", "BRENVALDO_"};
    return std::any_of(starts.begin(), starts.end(), [&](const QByteArray& start) {
        return variable.startsWith(start);
    });
}

void forgetTheCaller()
{
    QByteArrayList variables;
    for (char** entry = environ; *entry != nullptr; ++entry)
        variables.append(QByteArray(*entry).split('=').first());
    for (const QByteArray& variable : variables) {
        if (!isKept(variable))
            qunsetenv(variable.constData());
    }
}

} // namespace

Surroundings::Surroundings()
{
    forgetTheCaller();
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("LC_ALL", "C.UTF-8");
    qputenv("TZ", "CET-1CEST,M3.5.0,M10.5.0/3");
    const QByteArray fonts = qgetenv("BRENVALDO_TEST_FONTS");
    qputenv("FONTCONFIG_FILE", fonts.isEmpty() ? BRENVALDO_PACKAGED_FONTS : fonts);
    makeFolder("HOME", u"home"_s);
    makeFolder("XDG_CACHE_HOME", u"cache"_s);
    makeFolder("XDG_CONFIG_HOME", u"configuration"_s);
    makeFolder("XDG_DATA_HOME", u"data"_s);
    makeFolder("XDG_RUNTIME_DIR", u"runtime"_s);
}

void Surroundings::makeFolder(const char* variable, const QString& name) const
{
    constexpr auto ownerOnly = QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner;
    const QString folder = m_home.path(name);
    QDir().mkdir(folder);
    QFile::setPermissions(folder, ownerOnly);
    qputenv(variable, folder.toUtf8());
}

} // namespace brenvaldo::test
