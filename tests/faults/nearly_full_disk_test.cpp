// SPDX-License-Identifier: GPL-3.0-or-later
// The disk has room for some photos of a run: those that fit are written, however many are in the
// making.

#include "injected_faults.h"

#include <platform/foundation/literals.h>
#include <script/script_fixture.h>
#include <support/log_lines.h>
#include <support/photo_builder.h>

#include <QDir>

using namespace brenvaldo;
using test::InjectedFaults;
using test::LogLines;
using test::PhotoBuilder;

namespace {

class NearlyFullDisk : public test::ScriptTest
{
protected:
    /// Noise, which takes as many bytes as it has samples, near enough.
    void addPhoto(const QString& name, int side)
    {
        m_photos.append(PhotoBuilder()
                            .size(side, side)
                            .pixels([](int x, int y) {
                                const int noise = (x * 7919 + y * 104729 + x * y * 31) & 255;
                                return test::Samples{noise, (noise * 3) & 255, (noise * 5) & 255};
                            })
                            .write(folder() + name));
    }

    /// The words of a run into a folder of its own that takes up `room` bytes.
    [[nodiscard]] QStringList wordsOfRun(
        const QString& target, int atATime, std::size_t room, const QString& type = u"bmp"_s
    ) const
    {
        QDir(folder()).mkdir(target);
        const LogLines log;
        const InjectedFaults faults(folder() + target + u'/', {.room = room});
        QStringList script{
            u"defaults PhotosAtATime %1"_s.arg(atATime),
            u"set pubFileManagementSelect 3"_s,
            u"set tfImageDestinationFolder "_s + folder() + target + u'/',
            u"set pubFileType "_s + type};
        for (const QString& photo : m_photos)
            script.append(u"open "_s + photo);
        script.append(u"press hLoadImages"_s);
        QStringList words;
        for (const QString& line : run(lines(script)).lines) {
            if (line.startsWith(u"result"))
                words.append(line.section(u'\t', 2));
        }
        return words;
    }

    [[nodiscard]] QStringList filesOf(const QString& target) const
    {
        return QDir(folder() + target)
            .entryList(QDir::Files | QDir::Hidden | QDir::System, QDir::Name);
    }

    [[nodiscard]] std::size_t sizeOf(const QString& target) const
    {
        std::size_t bytes = 0;
        for (const QFileInfo& file : QDir(folder() + target).entryInfoList(QDir::Files))
            bytes += static_cast<std::size_t>(file.size());
        return bytes;
    }

private:
    QStringList m_photos;
};

} // namespace

TEST_F(NearlyFullDisk, FailsEachPhotoThatDoesNotFitAndNoneThatDoes)
{
    // As a bitmap, a photo of 100 x 100 pixels takes 30 kB and one of 300 x 300 takes 270 kB.
    for (const QString& name :
         {u"a.jpg"_s, u"b.jpg"_s, u"c.jpg"_s, u"d.jpg"_s, u"e.jpg"_s, u"f.jpg"_s})
        addPhoto(name, name == u"c.jpg"_s ? 300 : 100);
    const QStringList expected{u"OK"_s, u"OK"_s, u"Failed"_s, u"OK"_s, u"OK"_s, u"Failed"_s};
    const QStringList files{u"a.bmp"_s, u"b.bmp"_s, u"d.bmp"_s, u"e.bmp"_s};
    constexpr std::size_t room = 140'000;

    EXPECT_EQ(wordsOfRun(u"one"_s, 1, room), expected);
    EXPECT_EQ(filesOf(u"one"_s), files);
    EXPECT_EQ(wordsOfRun(u"many"_s, 6, room), expected);
    EXPECT_EQ(filesOf(u"many"_s), files);
}

TEST_F(NearlyFullDisk, HasRoomForPhotosThatFitOneByOne)
{
    // Beside each file, while it is made, stands the one without its metadata.
    for (const QString& name :
         {u"a.jpg"_s, u"b.jpg"_s, u"c.jpg"_s, u"d.jpg"_s, u"e.jpg"_s, u"f.jpg"_s})
        addPhoto(name, 500);
    const QStringList allOk(6, u"OK"_s);
    constexpr std::size_t plenty = 1U << 30U;
    ASSERT_EQ(wordsOfRun(u"free"_s, 1, plenty, u"jpeg"_s), allOk);
    const std::size_t bytes = sizeOf(u"free"_s);
    const std::size_t room = bytes + bytes / 5;

    EXPECT_EQ(wordsOfRun(u"one"_s, 1, room, u"jpeg"_s), allOk);
    EXPECT_EQ(wordsOfRun(u"many"_s, 6, room, u"jpeg"_s), allOk);
}
