// SPDX-License-Identifier: GPL-3.0-or-later
#include <platform/foundation/literals.h>
#include <workspace/run/run_journal.h>

#include <support/text_printing.h>

#include <gtest/gtest.h>

using namespace brenvaldo;

namespace {

workspace::RunRecord record(const QString& source, imaging::ResultWord word)
{
    return {
        .time = QDateTime({2026, 11, 15}, {10, 44, 33}),
        .function = u"resizePhotos"_s,
        .source = source,
        .target = u"/out/a.jpg"_s,
        .word = word};
}

} // namespace

TEST(RunJournal, TellsWhatItRecords)
{
    workspace::RunJournal journal;
    QStringList words;
    const auto subscription = journal.recorded.connect([&](const workspace::RunRecord& added) {
        words.append(text(added.word));
    });

    journal.add(record(u"/in/a.jpg"_s, imaging::ResultWord::Ok));
    journal.add(record(u"/in/b.jpg"_s, imaging::ResultWord::Failed));

    EXPECT_EQ(words, (QStringList{u"OK"_s, u"Failed"_s}));
    EXPECT_EQ(journal.records().size(), 2);
}

TEST(RunJournal, KnowsWhenARecordWasAdded)
{
    workspace::RunJournal journal;
    const QDateTime before = QDateTime::currentDateTime();

    journal.add({.function = u"resizePhotos"_s, .source = {}, .target = {}});

    EXPECT_GE(journal.records().first().time, before);
    EXPECT_LE(journal.records().first().time, QDateTime::currentDateTime());
}

TEST(RunJournal, GivesOneLineARecord)
{
    workspace::RunJournal journal;
    journal.add(record(u"/in/a.jpg"_s, imaging::ResultWord::Ok));
    journal.add(record(u"/in/b.jpg"_s, imaging::ResultWord::Failed));

    EXPECT_EQ(
        journal.asText(),
        u"2026-11-15T10:44:33\tresizePhotos\t/in/a.jpg\t/out/a.jpg\tOK\n"
        u"2026-11-15T10:44:33\tresizePhotos\t/in/b.jpg\t/out/a.jpg\tFailed\n"_s
    );
}

TEST(RunJournal, ForgetsAllRecords)
{
    workspace::RunJournal journal;
    journal.add(record(u"/in/a.jpg"_s, imaging::ResultWord::Ok));

    journal.clear();

    EXPECT_TRUE(journal.records().isEmpty());
    EXPECT_EQ(journal.asText(), QString());
}
