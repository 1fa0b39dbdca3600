// SPDX-License-Identifier: GPL-3.0-or-later
#include <platform/foundation/commit_turn.h>
#include <platform/foundation/files_in_the_making.h>
#include <platform/foundation/literals.h>
#include <platform/foundation/log.h>

#include <QStringList>

#include <gtest/gtest.h>

#include <thread>

using namespace brenvaldo;

namespace {

/// Notes who waits for what.
class Files : public platform::FilesInTheMaking
{
public:
    Files(const QString& name, QStringList& waits)
        : m_name(name)
        , m_waits(waits)
    {
    }
    void waitFor(const QString& path) override { m_waits.append(m_name + u' ' + path); }
    void waitForUsesOf(const QString& path) override
    {
        m_waits.append(m_name + u" uses of "_s + path);
    }
    void waitForAll() override { m_waits.append(m_name); }

private:
    QString m_name;
    QStringList& m_waits;
};

} // namespace

TEST(FilesInTheMaking, AreWaitedForOnTheirThreadAlone)
{
    QStringList waits;
    {
        const Files outer(u"outer"_s, waits);
        const Files inner(u"inner"_s, waits);
        platform::awaitFile(u"/a.jpg"_s);
        platform::awaitUsesOfFile(u"/d.jpg"_s);
        platform::awaitAllFiles();
        std::thread([] {
            platform::awaitFile(u"/b.jpg"_s);
            platform::awaitUsesOfFile(u"/b.jpg"_s);
            platform::awaitAllFiles();
        }).join();
    }
    platform::awaitFile(u"/c.jpg"_s);

    EXPECT_EQ(
        waits,
        (QStringList{
            u"outer /a.jpg"_s,
            u"inner /a.jpg"_s,
            u"outer uses of /d.jpg"_s,
            u"inner uses of /d.jpg"_s,
            u"outer"_s,
            u"inner"_s})
    );
}

TEST(CommitTurn, IsWaitedForWhileItLives)
{
    EXPECT_TRUE(platform::awaitCommitTurn());
    {
        const platform::CommitTurn turn([] { return false; });
        EXPECT_FALSE(platform::awaitCommitTurn());
    }
    EXPECT_TRUE(platform::awaitCommitTurn());
}

TEST(ThreadLogSink, TakesTheLinesOfItsThread)
{
    QStringList all;
    QStringList own;
    platform::setLogSink([&all](const QString& line) { all.append(line); });
    {
        const platform::ThreadLogSink sink([&own](const QString& line) { own.append(line); });
        platform::log(u"mine"_s);
        std::thread([] { platform::log(u"another's"_s); }).join();
    }
    platform::log(u"later"_s);
    platform::setLogSink({});

    EXPECT_EQ(own, QStringList{u"mine"_s});
    EXPECT_EQ(all, (QStringList{u"another's"_s, u"later"_s}));
}
