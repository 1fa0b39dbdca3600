// SPDX-License-Identifier: GPL-3.0-or-later
#include <platform/foundation/literals.h>
#include <support/text_printing.h>
#include <views/photos/photo_grid.h>
#include <views/photos/photo_grid_delegate.h>
#include <views/photos/photo_grid_model.h>

#include <gtest/gtest.h>

#include <QDropEvent>
#include <QMimeData>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QUrl>

using namespace brenvaldo;

namespace {

class PhotoGrid : public testing::Test
{
protected:
    void add(const QStringList& names)
    {
        for (const QString& name : names) {
            workspace::cCollectionViewItem entry;
            entry.myPhotoName = name;
            entry.myPhotoDescription = u"/nowhere/"_s + name;
            photos.append(entry);
        }
    }

    void show()
    {
        grid.resize(700, 400);
        grid.show();
        QCoreApplication::processEvents();
    }

    QRect cell(int row) const { return grid.visualRect(grid.model()->index(row, 0)); }

    void drop(const QMimeData& data, const QPoint& position)
    {
        QDragEnterEvent enter(position, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(grid.viewport(), &enter);
        QDropEvent event(position, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(grid.viewport(), &event);
    }

    workspace::PhotoList photos;
    views::PhotoGrid grid{photos};
};

} // namespace

TEST_F(PhotoGrid, ShowsTheEntriesOfTheList)
{
    add({u"a.jpg"_s, u"b.jpg"_s, u"c.jpg"_s});
    EXPECT_EQ(grid.model()->rowCount(), 3);

    photos.removeAt(0);

    EXPECT_EQ(grid.model()->rowCount(), 2);
    EXPECT_EQ(grid.model()->index(0, 0).data().toString(), u"b.jpg"_s);
}

TEST_F(PhotoGrid, SelectsByMouseAndByArrowKeys)
{
    add({u"a.jpg"_s, u"b.jpg"_s, u"c.jpg"_s});
    show();

    QTest::mouseClick(grid.viewport(), Qt::LeftButton, {}, cell(1).center());
    EXPECT_EQ(photos.selectedIndex(), 1);
    QTest::keyClick(&grid, Qt::Key_Right);

    EXPECT_EQ(photos.selectedIndex(), 2);
}

TEST_F(PhotoGrid, KeepsTheSelectionOnAPhotoThatGoesToAnotherPlace)
{
    add({u"a.jpg"_s, u"b.jpg"_s, u"c.jpg"_s});
    show();
    photos.select(0);

    photos.move(0, 2);
    EXPECT_EQ(grid.currentIndex().row(), 2);
    EXPECT_EQ(grid.currentIndex().data().toString(), u"a.jpg"_s);

    photos.removeAt(0);
    EXPECT_EQ(grid.currentIndex().row(), 1);
    EXPECT_EQ(photos.selectedIndex(), 1);

    photos.sortByName(workspace::PhotoList::Order::Ascending);
    EXPECT_EQ(grid.currentIndex().row(), 0);
    EXPECT_EQ(grid.currentIndex().data().toString(), u"a.jpg"_s);
}

TEST_F(PhotoGrid, SelectsThePhotoBehindTheSelectedOneThatIsRemoved)
{
    add({u"a.jpg"_s, u"b.jpg"_s, u"c.jpg"_s});
    show();
    photos.select(1);

    photos.removeAt(1);
    EXPECT_EQ(grid.currentIndex().data().toString(), u"c.jpg"_s);
    photos.removeAt(1);

    EXPECT_EQ(grid.currentIndex().data().toString(), u"a.jpg"_s);
    EXPECT_EQ(photos.selectedIndex(), 0);
}

TEST_F(PhotoGrid, FollowsTheSelectionOfTheList)
{
    add({u"a.jpg"_s, u"b.jpg"_s});
    show();

    photos.select(1);
    EXPECT_EQ(grid.currentIndex().row(), 1);
    photos.select(std::nullopt);

    EXPECT_FALSE(grid.currentIndex().isValid());
}

TEST_F(PhotoGrid, TicksByTheBoxOnThePictureAndBySpace)
{
    add({u"a.jpg"_s, u"b.jpg"_s});
    show();
    QSignalSpy wanted(&grid, &views::PhotoGrid::tickWanted);

    const QPoint box = views::PhotoGridDelegate::tickRect(cell(1)).center();
    QTest::mouseClick(grid.viewport(), Qt::LeftButton, {}, box);
    photos.select(0);
    QTest::keyClick(&grid, Qt::Key_Space);

    ASSERT_EQ(wanted.size(), 2);
    EXPECT_EQ(wanted.at(0).at(0).toInt(), 1);
    EXPECT_EQ(wanted.at(1).at(0).toInt(), 0);
}

TEST_F(PhotoGrid, AsksToMoveADraggedPhotoToTheGapItWasDroppedOn)
{
    add({u"a.jpg"_s, u"b.jpg"_s, u"c.jpg"_s});
    show();
    photos.select(0);
    QList<int> gaps;
    QObject::connect(
        &grid,
        &views::PhotoGrid::moveWanted,
        &grid,
        [&](const QList<int>& rows, int gap) {
            EXPECT_EQ(rows, QList<int>{0});
            gaps.append(gap);
        }
    );
    const std::unique_ptr<QMimeData> data(grid.model()->mimeData({grid.model()->index(0, 0)}));

    drop(*data, cell(2).center() - QPoint(20, 0));
    drop(*data, cell(2).center() + QPoint(20, 0));
    drop(*data, grid.viewport()->rect().bottomRight() - QPoint(5, 5));

    EXPECT_EQ(gaps, (QList<int>{2, 3, 3}));
    EXPECT_EQ(grid.model()->rowCount(), 3);
}

TEST_F(PhotoGrid, AsksToAddFilesThatAreDroppedOnIt)
{
    show();
    QSignalSpy dropped(&grid, &views::PhotoGrid::filesDropped);
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile(u"/a/b.jpg"_s), QUrl(u"https://example.org/c.jpg"_s)});

    drop(data, {40, 40});

    ASSERT_EQ(dropped.size(), 1);
    EXPECT_EQ(dropped.at(0).at(0).toStringList(), QStringList{u"/a/b.jpg"_s});
}

TEST_F(PhotoGrid, OffersToAddPhotosWhileItIsEmpty)
{
    show();
    QSignalSpy wanted(&grid, &views::PhotoGrid::addWanted);
    auto* button = grid.findChild<QPushButton*>();

    QTest::mouseClick(button, Qt::LeftButton);
    EXPECT_EQ(wanted.size(), 1);
    add({u"a.jpg"_s});

    EXPECT_FALSE(button->isVisible());
}

TEST_F(PhotoGrid, SpeaksNameSizeAndTick)
{
    add({u"a.jpg"_s});

    const QString text = grid.model()->index(0, 0).data(Qt::AccessibleTextRole).toString();

    EXPECT_TRUE(text.startsWith(u"a.jpg"_s));
    EXPECT_TRUE(text.endsWith(u", ticked"_s));
}

TEST_F(PhotoGrid, TellsWhatADryRunMakesOfTheNames)
{
    using Kind = views::PhotoGridModel::NewName;
    const auto kinds = [this] {
        QList<Kind> found;
        for (int row = 0; row < grid.model()->rowCount(); ++row)
            found.append(static_cast<Kind>(
                grid.model()->index(row, 0).data(views::PhotoGridModel::NewNameKindRole).toInt()
            ));
        return found;
    };
    add({u"a.jpg"_s, u"b.jpg"_s, u"c.jpg"_s, u"d.jpg"_s});

    photos.setNewName(0, u"x.jpg"_s);
    photos.setNewName(1, u"b.jpg"_s);
    photos.setNewName(2, u"y.jpg"_s);
    EXPECT_EQ(kinds(), (QList<Kind>{Kind::Other, Kind::Same, Kind::Other, Kind::None}));
    photos.setNewName(3, u"x.jpg"_s);
    EXPECT_EQ(kinds(), (QList<Kind>{Kind::Clash, Kind::Same, Kind::Other, Kind::Clash}));

    // Also for entries that come at once.
    photos.removeAt(1);
    EXPECT_EQ(kinds(), (QList<Kind>{Kind::Clash, Kind::Other, Kind::Clash}));
    photos.setNewName(0, QString());
    EXPECT_EQ(kinds(), (QList<Kind>{Kind::None, Kind::Other, Kind::Other}));
}

TEST_F(PhotoGrid, SpeaksNewNames)
{
    const auto spoken = [this](int row) {
        return grid.model()->index(row, 0).data(Qt::AccessibleTextRole).toString();
    };
    add({u"a.jpg"_s, u"b.jpg"_s});

    photos.setNewName(0, u"x.jpg"_s);
    photos.setNewName(1, u"b.jpg"_s);
    EXPECT_TRUE(spoken(0).endsWith(u", ticked, new name x.jpg"_s)) << spoken(0).toStdString();
    EXPECT_TRUE(spoken(1).endsWith(u", ticked, keeps its name"_s)) << spoken(1).toStdString();
    photos.setNewName(1, u"x.jpg"_s);
    EXPECT_TRUE(spoken(0).endsWith(u", new name x.jpg clashes with another"_s));
}

TEST_F(PhotoGrid, RedrawsTheOtherEntryOfAClash)
{
    add({u"a.jpg"_s, u"b.jpg"_s, u"c.jpg"_s});
    photos.setNewName(0, u"x.jpg"_s);
    QSignalSpy redrawn(grid.model(), &QAbstractItemModel::dataChanged);
    const auto lastRows = [&redrawn] {
        const auto arguments = redrawn.takeLast();
        return QPair(arguments.at(0).toModelIndex().row(), arguments.at(1).toModelIndex().row());
    };

    photos.setNewName(2, u"y.jpg"_s);
    EXPECT_EQ(lastRows(), QPair(2, 2));
    photos.setNewName(2, u"x.jpg"_s);
    EXPECT_EQ(lastRows(), QPair(0, 2));
    photos.setNewName(2, QString());
    EXPECT_EQ(lastRows(), QPair(0, 2));
}
