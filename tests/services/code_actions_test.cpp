// SPDX-License-Identifier: GPL-3.0-or-later
#include <services/code_actions.h>

#include <platform/foundation/literals.h>

#include <support/code_reader.h>
#include <support/temporary_folder.h>
#include <support/text_printing.h>

#include <QDir>
#include <QImageReader>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using brenvaldo::panels::CodePanel;
using brenvaldo::services::CodeActions;
using brenvaldo::test::readCode;
using brenvaldo::test::TemporaryFolder;

namespace {

class CodeFile : public testing::Test
{
protected:
    CodeFile()
    {
        panel.tfQRtext.setStringValue(u"text é"_s);
        panel.tfQRDestination.setStringValue(folder.path());
        panel.tfQRName.setStringValue(u"code"_s);
        panel.tfQRSize.setStringValue(u"300"_s);
    }

    [[nodiscard]] QStringList files() const { return QDir(folder.path()).entryList(QDir::Files); }
    [[nodiscard]] QImage picture() const { return QImage(folder.path(u"code.png"_s)); }

    TemporaryFolder folder;
    CodePanel panel;
    QStringList alerts;
    CodeActions actions{panel, [this](const QString& title, const QString& text) {
                            alerts.append(title + u'|' + text);
                        }};
};

} // namespace

TEST_F(CodeFile, HoldsAQrCodeForTheFirstKind)
{
    panel.pubCodeType.selectItemAtIndex(0);
    actions.hGenerateCode();
    EXPECT_EQ(files(), QStringList{u"code.png"_s});
    EXPECT_EQ(picture().size(), QSize(300, 300));
    EXPECT_EQ(picture().dotsPerMeterX(), 5669);
    EXPECT_EQ(readCode(picture()), "text \xc3\xa9");
    EXPECT_TRUE(alerts.isEmpty());
}

TEST_F(CodeFile, HoldsABarCodeForAnyOtherKind)
{
    panel.tfQRtext.setStringValue(u"1234"_s);
    for (const int index : {1, -1}) {
        panel.pubCodeType.selectItemAtIndex(index);
        actions.hGenerateCode();
        EXPECT_EQ(picture().size(), QSize(300, 44));
        EXPECT_EQ(readCode(picture()), "1234");
        QFile::remove(folder.path(u"code.png"_s));
    }
}

TEST_F(CodeFile, ReplacesAnExistingFile)
{
    (void)folder.write(u"code.png"_s, "old");
    actions.hGenerateQRImage();
    EXPECT_EQ(picture().size(), QSize(300, 300));
}

TEST_F(CodeFile, IsNamedByJoiningTheFields)
{
    panel.tfQRDestination.setStringValue(folder.path(u"glued"_s));
    panel.tfQRName.setStringValue(u"code.png"_s);
    actions.hGenerateQRImage();
    EXPECT_EQ(files(), QStringList{u"gluedcode.png.png"_s});
}

TEST_F(CodeFile, NeedsAllThreeFields)
{
    for (brenvaldo::controls::TextField* field :
         {&panel.tfQRtext, &panel.tfQRDestination, &panel.tfQRName}) {
        const QString value = field->stringValue();
        field->setStringValue(QString());
        actions.hGenerateQRImage();
        actions.hGenerateBarCodeImage();
        field->setStringValue(value);
    }
    const QString alert
        = u"Missing parameter|Sorry, we are missing some information to generate the "
          u"code.\rPlease check the input fields."_s;
    EXPECT_EQ(alerts, QStringList(6, alert));
    EXPECT_TRUE(files().isEmpty());
}

TEST_F(CodeFile, IsNotMadeSilentlyForWhatNoCodeHolds)
{
    actions.hGenerateBarCodeImage();
    panel.tfQRtext.setStringValue(QString(2332, u'a'));
    actions.hGenerateQRImage();
    panel.tfQRtext.setStringValue(u"a"_s);
    panel.tfQRSize.setStringValue(u"0"_s);
    actions.hGenerateQRImage();
    EXPECT_TRUE(files().isEmpty());
    EXPECT_TRUE(alerts.isEmpty());
}
