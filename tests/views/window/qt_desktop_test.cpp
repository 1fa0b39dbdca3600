// SPDX-License-Identifier: GPL-3.0-or-later
#include <platform/foundation/literals.h>
#include <support/environment.h>
#include <support/photo_builder.h>
#include <support/temporary_folder.h>
#include <support/text_printing.h>
#include <views/window/qt_desktop.h>

#include <gtest/gtest.h>

#include <QDesktopServices>

using namespace brenvaldo;

namespace {

/// Stands in for the programs of the desktop and keeps what they are given.
class Viewer : public QObject
{
    Q_OBJECT

public:
    Viewer()
    {
        for (const QString& scheme : schemes)
            QDesktopServices::setUrlHandler(scheme, this, "take");
    }
    ~Viewer() override
    {
        for (const QString& scheme : schemes)
            QDesktopServices::unsetUrlHandler(scheme);
    }
    Viewer(const Viewer&) = delete;
    Viewer& operator=(const Viewer&) = delete;
    Viewer(Viewer&&) = delete;
    Viewer& operator=(Viewer&&) = delete;

    QList<QUrl> taken;

public Q_SLOTS:
    void take(const QUrl& url) { taken.append(url); }

private:
    QStringList schemes{u"https"_s, u"file"_s};
};

class QtDesktop : public testing::Test
{
protected:
    test::Environment noBus{"DBUS_SESSION_BUS_ADDRESS", "unix:path=/nowhere"};
    test::TemporaryFolder folder;
    Viewer viewer;
    views::QtDesktop desktop;
};

} // namespace

TEST_F(QtDesktop, OpensAddressesInTheBrowser)
{
    desktop.openUrl(QUrl(u"https://example.org/help"_s));

    EXPECT_EQ(viewer.taken, QList{QUrl(u"https://example.org/help"_s)});
}

TEST_F(QtDesktop, OpensTheFolderOfAFileWithoutASessionBus)
{
    const QString photo = test::PhotoBuilder{}.size(5, 3).write(folder.path(u"a.jpg"_s));

    desktop.reveal(photo);

    ASSERT_EQ(viewer.taken.size(), 1);
    EXPECT_EQ(
        viewer.taken.first().adjusted(QUrl::StripTrailingSlash),
        QUrl::fromLocalFile(QFileInfo(photo).path())
    );
}

TEST_F(QtDesktop, OpensAFolderItself)
{
    const QString path = QFileInfo(folder.path(u"x"_s)).path();

    desktop.reveal(path);

    EXPECT_EQ(viewer.taken, QList{QUrl::fromLocalFile(path)});
}

#include "qt_desktop_test.moc"
