// SPDX-License-Identifier: GPL-3.0-or-later
// The scripts of the folder examples do what they say.

#include "script_fixture.h"

#include <platform/foundation/literals.h>

#include <support/photo_builder.h>

#include <QDir>
#include <QImageReader>

using namespace brenvaldo;
using test::PhotoBuilder;
using testing::Each;
using testing::EndsWith;
using testing::SizeIs;

class Examples : public test::ScriptTest
{
protected:
    Examples()
        : m_before(QDir::currentPath())
    {
        QDir::setCurrent(folder());
        for (const QString& made : {u"photos"_s, u"small"_s, u"large"_s, u"thumbnails"_s, u"png"_s})
            QDir().mkdir(made);
        for (const QString& wide : {u"dawn"_s, u"noon"_s, u"fog"_s, u"night"_s})
            PhotoBuilder().size(180, 120).write(u"photos/%1.jpg"_s.arg(wide));
        for (const QString& upright : {u"autumn"_s, u"dusk"_s})
            PhotoBuilder().size(120, 180).write(u"photos/%1.jpg"_s.arg(upright));
    }
    Examples(const Examples&) = delete;
    Examples& operator=(const Examples&) = delete;
    Examples(Examples&&) = delete;
    Examples& operator=(Examples&&) = delete;
    ~Examples() override { QDir::setCurrent(m_before); }

    [[nodiscard]] static Outcome example(const QString& name)
    {
        return runFiles({QString::fromUtf8(BRENVALDO_EXAMPLES "/") + name});
    }

    [[nodiscard]] static QStringList filesIn(const QString& folder)
    {
        return QDir(folder).entryList(QDir::Files, QDir::Name);
    }

    [[nodiscard]] static QSize sizeOf(const QString& path) { return QImageReader(path).size(); }

private:
    QString m_before;
};

TEST_F(Examples, FirstRunMakesSmallCopies)
{
    const auto outcome = example(u"first-run"_s);

    EXPECT_EQ(outcome.errors, QString());
    EXPECT_EQ(outcome.status, 0);
    EXPECT_THAT(filesIn(u"small"_s), SizeIs(6));
    EXPECT_EQ(sizeOf(u"small/dawn.jpg"_s), QSize(1000, 666));
    EXPECT_EQ(sizeOf(u"small/dusk.jpg"_s), QSize(666, 1000));
}

TEST_F(Examples, WebSizesMakesTwoSizesOfLandscapePhotos)
{
    const auto outcome = example(u"web-sizes"_s);

    EXPECT_EQ(outcome.errors, QString());
    EXPECT_THAT(filesIn(u"large"_s), SizeIs(4));
    EXPECT_THAT(filesIn(u"thumbnails"_s), SizeIs(4));
    EXPECT_EQ(sizeOf(u"large/fog.jpg"_s).width(), 1600);
    EXPECT_EQ(sizeOf(u"thumbnails/fog.jpg"_s).width(), 400);
}

TEST_F(Examples, ConvertToPngLeavesOutThePhotoWithoutATick)
{
    const auto outcome = example(u"convert-to-png"_s);

    EXPECT_EQ(outcome.errors, QString());
    EXPECT_EQ(filesIn(u"png"_s), QStringList({u"dawn.png"_s, u"night.png"_s}));
    EXPECT_EQ(sizeOf(u"png/dawn.png"_s), QSize(180, 120));
}
