// SPDX-License-Identifier: GPL-3.0-or-later
#include "../controller_fixture.h"

#include <platform/codecs/image_source.h>
#include <platform/foundation/literals.h>
#include <workspace/functions/function_id.h>
#include <workspace/functions/functions.h>

#include <QDir>
#include <QDirIterator>

using namespace brenvaldo;

namespace {

using Files = QMap<QString, QByteArray>;

/// What a run left behind: all that can be seen of it.
struct Seen
{
    QStringList events;
    QList<double> bar;
    Files files;
};

/// 14 unless the environment asks for more.
int photosOfTheTest()
{
    const int wanted = qEnvironmentVariableIntValue("BRENVALDO_TEST_PHOTOS");
    return wanted > 0 ? wanted : 14;
}

/// A photo of another kind for each number; every seventh is damaged, missing or none.
QByteArray photoOf(int number)
{
    using test::PhotoFormat;
    using test::PhotoModel;
    test::PhotoBuilder photo;
    photo.size(300 + 40 * (number % 5), 200 + 30 * (number % 3)).orientation(1 + number % 8);
    switch (number % 7) {
    case 0:
        return photo.format(PhotoFormat::Png).depth(16).bytes();
    case 1:
        return photo.format(PhotoFormat::Tiff).model(PhotoModel::RgbAlpha).bytes();
    case 2:
        return photo.format(PhotoFormat::ProgressiveJpeg).model(PhotoModel::Gray).bytes();
    case 3:
        return number % 2 == 0 ? QByteArray("no photo") : photo.bytes().first(3000);
    case 4:
        return photo.format(PhotoFormat::Bmp).bytes();
    default:
        return photo.bytes();
    }
}

/// Watermark runs end at the first photo that can't be read.
bool endsAtDamage(const QString& id) { return id == u"textWM"_s || id == u"imageWM"_s; }

QByteArray readablePhotoOf(int number) { return photoOf(number % 7 == 3 ? number + 1 : number); }

/// A program with a folder of mixed photos, some of which share a name but for the extension.
class Program : public test::ControllerTest
{
public:
    explicit Program(int photosAtATime, const char* id)
    {
        neighbours.photosAtATime = [photosAtATime] { return photosAtATime; };
        neighbours.cores = photosAtATime;
        neighbours.hRenameTWMFile
            = [this](const QString& path, const QString&, const QList<QStringList>&) {
                  // As a chain that names a file after its size and a running number does.
                  return u"n%1-%2.jpg"_s.arg(QFileInfo(path).size()).arg(m_number++);
              };
        QDir().mkpath(folder.path(u"out"_s));
        select(id);
        restoreRun(id);
        choose(row(id));
        fillSettings();
        addPhotos(endsAtDamage(QLatin1StringView(id)) ? readablePhotoOf : photoOf);
        m_events.push_back(journal.recorded.connect([this](const workspace::RunRecord& record) {
            note(
                {record.function,
                 record.source,
                 record.target,
                 text(record.word),
                 QString::number(QFileInfo(record.target).size())}
            );
        }));
        m_events.push_back(alertShown.connect([this](const QString& title, const QString& alert) {
            note({title, alert});
        }));
    }

    /// Runs into `destination`, with a chain of file-name actions or without.
    Seen run(const QString& destination, bool hasChain)
    {
        panels.vwMainDestination.tfImageDestinationFolder.setStringValue(
            folder.path() + destination
        );
        if (hasChain)
            panels.vwWatermark.cActionsTWMArrayController.addObject({u"Prefix"_s, u"x"_s});
        const auto shown = panels.window.myProgressBar.changed.connect([this] { barMoved(); });
        actions.send(u"hLoadImages"_s);
        note({u"end"_s});
        return {.events = m_seen, .bar = m_bar, .files = files()};
    }

private:
    void TestBody() override { }

    void choose(const workspace::Function& function)
    {
        if (function.choice.section == workspace::Section::EditPhoto)
            panels.window.pubEditPhoto.selectIndex(function.choice.index);
        panels.vwWatermark.tbvWatermarkType.selectIndex(function.id == u"imageWM"_s ? 1 : 0);
    }

    void fillSettings()
    {
        panels.vwFileType.pubFileType.selectIndex(5);
        panels.vwWatermark.tvWaterMarkText.setStringValue(u"A mark"_s);
        panels.vwWatermark.tfWaterMarkImageFilePath.setStringValue(
            folder.write(u"logo.gif"_s, test::PhotoBuilder().format(test::PhotoFormat::Gif).bytes())
        );
        panels.vwResizePhotos.dvVCUiScaleMaxView.tfScaleMaxVal.setStringValue(u"100"_s);
    }

    void addPhotos(QByteArray (*bytesOf)(int number))
    {
        static const QStringList extensions{
            u"png"_s, u"tiff"_s, u"jpg"_s, u"jpeg"_s, u"bmp"_s, u"jpg"_s, u"JPG"_s};
        for (int number = 0; number < photosOfTheTest(); ++number) {
            const QString name
                = u"p%1.%2"_s.arg(number / 3).arg(extensions.at(number % extensions.size()));
            photos.append(entry(folder.write(name, bytesOf(number)), u"L"_s));
        }
        photos.append(photos.entries().first());
        photos.append(entry(folder.path(u"missing.jpg"_s), u"L"_s));
    }

    /// Changes settings while the run goes on.
    void barMoved()
    {
        const int move = ++m_moves;
        m_bar.append(panels.window.myProgressBar.doubleValue());
        auto& scale = panels.vwResizePhotos;
        scale.pubScaleType.selectIndex(move / 4 % 2);
        scale.dvVCUiScaleMaxView.tfScaleMaxVal.setStringValue(QString::number(move % 9 * 20));
        scale.dvVCUiScaleFixView.tfScaleFixWidth.setStringValue(QString::number(move % 5 * 30));
        scale.dvVCUiScaleFixView.tfScaleFixHeight.setStringValue(u"70"_s);
        panels.vwWatermark.tfFontSize.setStringValue(QString::number(20 + move % 6));
    }

    void note(const QStringList& event)
    {
        m_seen.append(event.join(u'\t').replace(folder.path(), u"~/"_s));
    }

    Files files() const
    {
        Files found;
        QDirIterator each(folder.path(), QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
        while (each.hasNext()) {
            const QString path = each.next();
            found.insert(path.mid(folder.path().size()), test::TemporaryFolder::read(path));
        }
        return found;
    }

    int m_moves = 0;
    int m_number = 0;
    QList<double> m_bar;
    QStringList m_seen;
    std::vector<platform::Subscription> m_events;
};

QStringList namesOfDifferent(const Files& one, const Files& other)
{
    QStringList names;
    for (auto file = one.begin(); file != one.end(); ++file) {
        if (other.value(file.key()) != file.value())
            names.append(file.key());
    }
    return names;
}

/// The events that are not the same, as they were with one photo at a time and with many.
std::vector<std::string> differentEvents(const QStringList& one, const QStringList& many)
{
    std::vector<std::string> events;
    for (qsizetype i = 0; i < std::max(one.size(), many.size()); ++i) {
        if (one.value(i) != many.value(i))
            events.push_back((one.value(i) + u" -> "_s + many.value(i)).toStdString());
    }
    return events;
}

struct HasOperation
{
    bool operator()(const workspace::OwnButton&) const { return false; }
    bool operator()(const workspace::PhotoRun& run) const { return static_cast<bool>(run.start); }
    bool operator()(const workspace::InPlaceRun& run) const { return static_cast<bool>(run.read); }
    bool operator()(const workspace::ListRun& run) const { return static_cast<bool>(run.work); }
    bool operator()(const workspace::RenamingRun& run) const
    {
        return static_cast<bool>(run.rename);
    }
};

/// The functions that run over photos in this version.
std::vector<std::string> functionsThatRun()
{
    std::vector<std::string> ids;
    for (const workspace::Function& function : workspace::functions()) {
        // Uploads go on by themselves beside any run, and keep dates.
        if (function.id != workspace::functionId::batchUploadPhotos
            && std::visit(HasOperation{}, function.run))
            ids.emplace_back(function.id.data());
    }
    return ids;
}

class WritingBehind : public testing::TestWithParam<std::string>
{
protected:
    void expectSame(const QString& destination, bool hasChain)
    {
        const Seen one = Program(1, GetParam().c_str()).run(destination, hasChain);
        const Seen many = Program(5, GetParam().c_str()).run(destination, hasChain);

        EXPECT_THAT(differentEvents(one.events, many.events), testing::IsEmpty());
        if (endsAtDamage(QString::fromStdString(GetParam()))) {
            EXPECT_GE(one.events.filter(u"\tOK\t"_s).size(), photosOfTheTest());
        }
        EXPECT_EQ(many.bar, one.bar);
        EXPECT_EQ(many.files.keys(), one.files.keys());
        EXPECT_EQ(namesOfDifferent(one.files, many.files), QStringList());
    }
};

} // namespace

TEST_P(WritingBehind, LeavesWhatOnePhotoAtATimeLeaves) { expectSame(u"out/"_s, false); }

TEST_P(WritingBehind, IsNotSeenWhereTargetsAreSources) { expectSame(QString(), false); }

TEST_P(WritingBehind, IsNotSeenByAChainOfFileNameActions) { expectSame(QString(), true); }

INSTANTIATE_TEST_SUITE_P(
    EachFunction,
    WritingBehind,
    testing::ValuesIn(functionsThatRun()),
    [](const auto& each) { return each.param; }
);
