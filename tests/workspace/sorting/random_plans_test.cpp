// SPDX-License-Identifier: GPL-3.0-or-later
#include "../controller_fixture.h"

#include <support/environment.h>
#include <support/log_lines.h>
#include <workspace/sorting/file_sorter.h>
#include <workspace/sorting/manual_sort.h>

#include <QDir>

#include <algorithm>
#include <functional>
#include <map>
#include <random>

/// \file
/// Random runs of renaming and sorting over a few folders, against a model of what becomes of each
/// file. BRENVALDO_PLANS is their number.

using namespace brenvaldo;

namespace {

/// What stands at a path: the text of a file, or where a link leads.
struct Item
{
    QString text;
    bool isLink = false;

    bool operator==(const Item&) const = default;
};

using Items = std::map<QString, Item>;

void PrintTo(const Item& item, std::ostream* out)
{
    *out << (item.isLink ? "-> " : "") << item.text.toStdString();
}

/// Files without a disk.
class Model
{
public:
    [[nodiscard]] bool isTaken(const QString& path) const { return items.contains(path); }

    /// A link stands for what it leads to.
    [[nodiscard]] bool exists(const QString& path, int steps = 8) const
    {
        const auto found = items.find(path);
        if (found == items.end() || steps == 0)
            return false;
        return !found->second.isLink || exists(found->second.text, steps - 1);
    }

    void copy(const QString& source, const QString& target)
    {
        if (isTaken(source) && !isTaken(target))
            items[target] = items[source];
    }
    void move(const QString& source, const QString& target)
    {
        if (!isTaken(source) || isTaken(target))
            return;
        items[target] = items[source];
        items.erase(source);
    }
    void link(const QString& source, const QString& target)
    {
        if (!isTaken(target))
            items[target] = {.text = source, .isLink = true};
    }
    void trash(const QString& path)
    {
        if (!isTaken(path))
            return;
        trashed.append(items[path].text);
        items.erase(path);
    }
    /// What the sorting by criteria does before it puts a file in its place.
    void free(const QString& target)
    {
        if (exists(target))
            items.erase(target);
    }

    Items items;
    QStringList trashed;
};

int planCount()
{
    bool isSet = false;
    const int count = qEnvironmentVariableIntValue("BRENVALDO_PLANS", &isSet);
    return isSet ? count : 300;
}

/// Names that clash with each other when they are changed.
const QStringList& names()
{
    static const QStringList all{
        u"a.jpg"_s, u"b.jpg"_s, u"ab.jpg"_s, u"aab.jpg"_s, u"ba"_s, u"a"_s, u".a"_s, u"a.b.c"_s};
    return all;
}

/// Base and extension; a dot at the start or the end parts nothing.
QPair<QString, QString> splitName(const QString& name)
{
    const qsizetype dot = name.lastIndexOf(u'.');
    if (dot <= 0 || dot == name.size() - 1 || name.startsWith(u".."_s))
        return {name, QString()};
    return {name.first(dot), name.sliced(dot + 1)};
}

class RandomPlans : public test::ControllerTest
{
protected:
    RandomPlans()
    {
        restoreRun("fileRenaming");
        sorter.registerActions(actions);
        manual.registerActions(actions);
        neighbours.hRenameTWMFile = workspace::cGUIcontrols::hRenameTWMFile;
        QDir(folder.path()).mkpath(u"data"_s);
    }

    [[nodiscard]] int below(int end) { return static_cast<int>(random() % unsigned(end)); }
    template <class List>
    [[nodiscard]] auto oneOf(const List& list)
    {
        return list.at(below(static_cast<int>(list.size())));
    }

    /// Three folders with a few files each, all of them different.
    void beginWithNewFiles()
    {
        model.items.clear();
        for (const QString& place : places) {
            QDir(place).removeRecursively();
            QDir().mkpath(place);
            for (int count = below(4); count > 0; --count)
                addFile(place + oneOf(names()));
        }
        addFile(places.first() + names().first());
    }
    void addFile(const QString& path)
    {
        const QString text = u"photo %1"_s.arg(++files);
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(text.toUtf8());
        model.items[path] = {.text = text};
    }

    /// Some of the files, in any order, now and then one that has gone.
    [[nodiscard]] QStringList someFiles()
    {
        QStringList paths;
        for (const auto& [path, item] : model.items)
            paths.append(path);
        paths.append(places.first() + u"gap.jpg"_s);
        std::shuffle(paths.begin(), paths.end(), random);
        return paths.first(1 + below(static_cast<int>(paths.size())));
    }

    void renameSome()
    {
        select("fileRenaming");
        const QStringList paths = someFiles();
        photos.clear();
        for (const QString& path : paths)
            photos.append(entry(path, u"S"_s));
        const QString destination = oneOf(places);
        panels.vwMainDestination.tfImageDestinationFolder.setStringValue(destination);
        panels.vwShowPreview.cbShowPreview.setState(below(8) == 0 ? 1 : 0);
        const auto newName = randomRenaming();
        if (!panels.vwShowPreview.cbShowPreview.isOn()) {
            for (int index = 0; index < paths.size(); ++index) {
                const QString name = newName(paths.at(index).section(u'/', -1), index);
                if (name != u"." && name != u".."_s)
                    model.copy(paths.at(index), destination + name);
            }
        }
        actions.send(u"hLoadImages"_s);
    }

    using NewName = std::function<QString(const QString& name, int index)>;

    [[nodiscard]] NewName randomRenaming()
    {
        panels::RenamePanel& panel = panels.vwFileManagementRename;
        switch (below(3)) {
        case 0: {
            const QString text = oneOf(QStringList{u""_s, u"a"_s, u"b"_s});
            panel.tbvFileRenaming.selectIndex(2);
            panel.tfPrefixToAdd.setStringValue(text);
            return [text](const QString& name, int) { return text + name; };
        }
        case 1: {
            const int count = 1 + below(2);
            panel.tbvFileRenaming.selectIndex(0);
            panel.tfStripNumberOfChar.setStringValue(QString::number(count));
            return [count](const QString& name, int) {
                const auto [base, extension] = splitName(name);
                return (base.size() > count ? base.sliced(count) : base) + u'.' + extension;
            };
        }
        default:
            panel.tbvFileRenaming.selectIndex(4);
            panel.tfNumberingDigits.setStringValue(u"2"_s);
            panel.mxNumberingPosition.selectRow(1);
            return [](const QString& name, int index) {
                const QString number = QString::number(index + 1);
                return (number.size() < 2 ? u'0' + number : QString()) + name;
            };
        }
    }

    void sortSomeByCriteria()
    {
        panels::SortingPanel& panel = panels.vwFileManagementSorting;
        const QString destination = oneOf(places);
        const QStringList paths = someFiles();
        const int handling = below(5) - 1;
        panel.tfBatchSortDestFolder.setStringValue(destination);
        panel.cbFileNameChoice.setState(below(6) == 0 ? 0 : 1);
        panel.tfFileNameVar.setStringValue(u"a"_s);
        panel.pubFileHandlingSelector.selectIndex(handling);
        const bool isRefused = paths.size() > 1 && paths.first().startsWith(destination);
        if (!isRefused && panel.cbFileNameChoice.isOn()) {
            for (const QString& path : paths) {
                if (splitName(path.section(u'/', -1)).first.contains(u'a'))
                    sortInModel(path, destination + path.section(u'/', -1), handling);
            }
        }
        chooser.answers = {paths};
        actions.send(u"DVFileSorterRoutine.hSortFiles"_s);
    }
    void sortInModel(const QString& path, const QString& target, int handling)
    {
        if (handling >= 0 && handling < 3)
            model.free(target);
        if (handling == 0)
            model.copy(path, target);
        if (handling == 1)
            model.move(path, target);
        if (handling == 2)
            model.link(path, target);
        if (handling == 3)
            model.trash(path);
    }

    void sortOneByHand()
    {
        const QString path = someFiles().first();
        const int tag = below(static_cast<int>(places.size()) + 1); // 0 is no folder
        photos.clear();
        photos.append(entry(path, u"S"_s));
        photos.select(0);
        for (int folder = 1; folder <= places.size(); ++folder)
            panels.vwFileManagementSorting.sortDestination(folder)->setStringValue(
                places.at(folder - 1)
            );
        const int action = below(4);
        sortByHandInModel(path, tag, action);
        static const QStringList actionNames{
            u"hCopyFileToFolder"_s,
            u"hMoveFileToFolder"_s,
            u"hAliasFileToFolder"_s,
            u"hTrashPhoto"_s};
        actions.send(u"cGUIcontrols."_s + actionNames.at(action), {.tag = tag});
    }
    void sortByHandInModel(const QString& path, int tag, int action)
    {
        if (action == 3)
            return model.trash(path);
        if (tag == 0)
            return;
        const QString target = places.at(tag - 1) + path.section(u'/', -1);
        if (action == 0)
            model.copy(path, target);
        if (action == 1)
            model.move(path, target);
        if (action == 2)
            model.link(path, target);
    }

    [[nodiscard]] Items found() const
    {
        Items items;
        for (const QString& place : places) {
            const auto entries = QDir(place).entryInfoList(
                QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot
            );
            for (const QFileInfo& entry : entries) {
                const QString path = entry.filePath();
                items[path] = entry.isSymLink()
                    ? Item{.text = entry.symLinkTarget(), .isLink = true}
                    : Item{.text = QString::fromUtf8(test::TemporaryFolder::read(path))};
            }
        }
        return items;
    }
    [[nodiscard]] QStringList foundInTrash() const
    {
        QStringList texts;
        const QDir trash(folder.path(u"data/Trash/files"_s));
        for (const QFileInfo& entry :
             trash.entryInfoList(QDir::Files | QDir::Hidden | QDir::System))
            texts.append(
                entry.isSymLink() ? entry.symLinkTarget()
                                  : QString::fromUtf8(test::TemporaryFolder::read(entry.filePath()))
            );
        return texts;
    }

    const QStringList places{folder.path(u"1/"_s), folder.path(u"2/"_s), folder.path(u"3/"_s)};
    test::Environment data{"XDG_DATA_HOME", folder.path(u"data"_s).toUtf8()};
    std::mt19937 random;
    Model model;
    int files = 0;

    workspace::DVFileSorterRoutine sorter{
        {.subsystems = subsystems,
         .desktop = desktop,
         .journal = journal,
         .alert = [](const workspace::Message&) {}}};
    workspace::ManualSort manual{
        {.subsystems = subsystems,
         .desktop = desktop,
         .collectionView = collectionView,
         .journal = journal,
         .outputName
         = [this](const QString& path) { return guiControls.driver().outputName(path); }}};
};

} // namespace

TEST_F(RandomPlans, LoseNoFile)
{
    const test::LogLines log;
    for (int plan = 0; plan < planCount(); ++plan) {
        random.seed(unsigned(plan));
        if (plan % 4 == 0)
            beginWithNewFiles();
        switch (plan % 3) {
        case 0:
            renameSome();
            break;
        case 1:
            sortSomeByCriteria();
            break;
        default:
            sortOneByHand();
        }
        ASSERT_EQ(found(), model.items) << "plan " << plan;
    }
    EXPECT_THAT(foundInTrash(), testing::UnorderedElementsAreArray(model.trashed));
}
