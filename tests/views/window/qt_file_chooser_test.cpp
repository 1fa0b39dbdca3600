// SPDX-License-Identifier: GPL-3.0-or-later
#include <controls/choice_controls.h>
#include <platform/foundation/literals.h>
#include <support/photo_builder.h>
#include <support/temporary_folder.h>
#include <support/text_printing.h>
#include <views/window/qt_file_chooser.h>

#include <gtest/gtest.h>

#include <QApplication>
#include <QDir>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>

using namespace brenvaldo;

namespace {

class QtFileChooser : public testing::Test
{
protected:
    /// Does `act` with the dialog that opens next.
    void whenOpen(const std::function<void(QFileDialog&)>& act)
    {
        QTimer::singleShot(0, &context, [act] {
            auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
            ASSERT_TRUE(dialog);
            act(*dialog);
        });
    }

    static void typeName(QFileDialog& dialog, const QString& name)
    {
        dialog.findChild<QLineEdit*>(u"fileNameEdit"_s)->setText(name);
    }

    /// Presses the button of the dialog that accepts.
    static void accept(QFileDialog& dialog) { QMetaObject::invokeMethod(&dialog, "accept"); }

    QObject context;
    test::TemporaryFolder folder;
    QString photo = test::PhotoBuilder{}.size(5, 3).write(folder.path(u"a.jpg"_s));
    QString place = QFileInfo(photo).path();
    views::QtFileChooser chooser;
};

} // namespace

TEST_F(QtFileChooser, GivesTheChosenFile)
{
    whenOpen([](QFileDialog& dialog) {
        EXPECT_EQ(dialog.windowTitle(), u"Choose a photo"_s);
        EXPECT_EQ(dialog.labelText(QFileDialog::Accept), u"Take"_s);
        typeName(dialog, u"a.jpg"_s);
        accept(dialog);
    });

    const auto paths = chooser.open(
        {.message = u"Choose a photo"_s,
         .prompt = u"Take"_s,
         .allowedTypes = {u"jpg"_s},
         .startFolder = place}
    );

    EXPECT_EQ(paths, QStringList{photo});
}

TEST_F(QtFileChooser, GivesNothingWhenItIsCancelled)
{
    whenOpen([](QFileDialog& dialog) { dialog.reject(); });

    EXPECT_FALSE(chooser.open({.startFolder = place}));
}

TEST_F(QtFileChooser, OpensWhereItStoodLast)
{
    whenOpen([](QFileDialog& dialog) {
        typeName(dialog, u"a.jpg"_s);
        accept(dialog);
    });
    ASSERT_TRUE(chooser.open({.startFolder = place}));
    QString folderOfSecond;
    whenOpen([&folderOfSecond](QFileDialog& dialog) {
        folderOfSecond = dialog.directory().path();
        dialog.reject();
    });

    EXPECT_FALSE(chooser.open({}));

    EXPECT_EQ(folderOfSecond, place);
}

TEST_F(QtFileChooser, OffersFoldersOnlyWhereAFolderIsAskedFor)
{
    whenOpen([](QFileDialog& dialog) {
        EXPECT_EQ(dialog.fileMode(), QFileDialog::Directory);
        EXPECT_TRUE(dialog.testOption(QFileDialog::ShowDirsOnly));
        dialog.reject();
    });

    EXPECT_FALSE(
        chooser.open({.choosesFiles = false, .choosesDirectories = true, .startFolder = place})
    );
}

TEST_F(QtFileChooser, AddsTheExtensionToTheNameOfASavedFile)
{
    whenOpen([](QFileDialog& dialog) {
        typeName(dialog, u"list"_s);
        accept(dialog);
    });

    const auto path = chooser.save({.allowedTypes = {u"txt"_s}, .startFolder = place});

    EXPECT_EQ(path, QDir(place).filePath(u"list.txt"_s));
}

TEST_F(QtFileChooser, AsksBeforeItReplacesAFileWhoseTypeWasNotTyped)
{
    const QString taken = folder.write(u"v1.2.c-action"_s, "old");
    QString question;
    whenOpen([&](QFileDialog& dialog) {
        QTimer::singleShot(0, &context, [&] {
            auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            ASSERT_TRUE(box);
            question = box->text();
            box->button(QMessageBox::No)->click();
        });
        typeName(dialog, u"v1.2"_s);
        accept(dialog);
        dialog.reject();
    });

    const auto path = chooser.save(
        {.allowedTypes = {u"c-action"_s}, .allowsOtherTypes = false, .startFolder = place}
    );

    EXPECT_FALSE(path);
    EXPECT_TRUE(question.contains(u"v1.2.c-action"_s)) << question.toStdString();
}

TEST_F(QtFileChooser, OpensAFolderThatIsTypedIntoASavePanel)
{
    ASSERT_TRUE(QDir(place).mkdir(u"inner"_s));
    QString opened;
    whenOpen([&](QFileDialog& dialog) {
        typeName(dialog, u"inner"_s);
        accept(dialog);
        opened = dialog.directory().path();
        dialog.reject();
    });

    EXPECT_FALSE(chooser.save({.allowedTypes = {u"txt"_s}, .startFolder = place}));

    EXPECT_EQ(opened, QDir(place).filePath(u"inner"_s));
}

TEST_F(QtFileChooser, FollowsTheTypeThatAnAccessoryPicks)
{
    controls::PopUpButton type(u"pubFileType"_s, {u"jpeg"_s, u"png"_s});
    controls::SavePanel panel
        = {.allowedTypes = {u"jpeg"_s},
           .allowsOtherTypes = false,
           .startFolder = place,
           .accessories = {{.label = u"File type"_s, .control = &type}}};
    const auto subscription
        = type.changed.connect([&] { panel.allowedTypes = {type.titleOfSelectedItem()}; });
    QStringList filters;
    whenOpen([&](QFileDialog& dialog) {
        type.selectItemAtIndex(1);
        filters = dialog.nameFilters();
        typeName(dialog, u"copy"_s);
        accept(dialog);
    });

    EXPECT_EQ(chooser.save(panel), QDir(place).filePath(u"copy.png"_s));

    EXPECT_EQ(filters, QStringList(u"Files (*.png *.PNG)"_s));
}

TEST_F(QtFileChooser, ShowsAccessoriesWithTheirLabels)
{
    controls::CheckBox box(u"cbDeep"_s, u"Deep"_s);
    chooser.attachTo(nullptr, [](controls::Control& control, QWidget* parent) {
        auto* field = new QWidget(parent);
        field->setObjectName(control.name());
        return field;
    });
    whenOpen([](QFileDialog& dialog) {
        EXPECT_TRUE(dialog.findChild<QWidget*>(u"cbDeep"_s));
        const auto labels = dialog.findChildren<QLabel*>();
        EXPECT_TRUE(std::any_of(labels.begin(), labels.end(), [](const QLabel* label) {
            return label->text() == u"Folders"_s;
        }));
        dialog.reject();
    });

    EXPECT_FALSE(chooser.open(
        {.startFolder = place, .accessories = {{.label = u"Folders"_s, .control = &box}}}
    ));
}

TEST(NameFilter, TellsTheTypesInBothCases)
{
    EXPECT_EQ(views::nameFilter({u"jpg"_s, u"png"_s}), u"Files (*.jpg *.JPG *.png *.PNG)"_s);
    EXPECT_EQ(views::nameFilter({}), QString());
}
