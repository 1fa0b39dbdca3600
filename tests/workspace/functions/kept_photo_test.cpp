// SPDX-License-Identifier: GPL-3.0-or-later
#include "../controller_fixture.h"

#include <platform/foundation/literals.h>

#include <QDateTime>
#include <QFile>

using namespace brenvaldo;

namespace {

class KeptPhoto : public test::ControllerTest, public testing::WithParamInterface<const char*>
{
protected:
    /// The pixels of the file get lost, but for its date and size.
    static void damage(const QString& path)
    {
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::ReadWrite));
        const QDateTime modified = file.fileTime(QFileDevice::FileModificationTime);
        const qint64 half = file.size() / 2;
        file.seek(half);
        file.write(QByteArray(file.size() - half, '\0'));
        file.flush();
        ASSERT_TRUE(file.setFileTime(modified, QFileDevice::FileModificationTime));
    }
};

} // namespace

TEST_P(KeptPhoto, IsNotDecodedAgainForAChange)
{
    const workspace::Functions all(workspace::functions());
    const auto& preview = all.withId(QString::fromLatin1(GetParam()))->preview;
    const QString path
        = test::PhotoBuilder().size(300, 200).gradient().write(folder.path(u"a.jpg"_s));
    const QImage first = preview(subsystems, path)->toQImage();
    ASSERT_FALSE(first.isNull());

    damage(path);

    EXPECT_EQ(preview(subsystems, path)->toQImage(), first);
}

INSTANTIATE_TEST_SUITE_P(
    Of,
    KeptPhoto,
    testing::Values("addTint", "framing", "roundings", "rotatePhotos"),
    [](const auto& id) { return std::string(id.param); }
);
