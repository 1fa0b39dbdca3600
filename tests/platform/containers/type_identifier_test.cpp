// SPDX-License-Identifier: GPL-3.0-or-later
#include <platform/containers/type_identifier.h>
#include <platform/foundation/literals.h>

#include <support/case_name.h>
#include <support/photo_builder.h>
#include <support/temporary_folder.h>
#include <support/text_printing.h>

#include <gmock/gmock.h>

namespace brenvaldo {
namespace {

using namespace platform::containers;
using namespace test;

struct ExtensionCase
{
    const char* name;
    const char* extension;
    const char* identifier;

    friend void PrintTo(const ExtensionCase& row, std::ostream* out) { *out << row.name; }
};

class TypeIdentifierOfExtension : public testing::TestWithParam<ExtensionCase>
{
};

TEST_P(TypeIdentifierOfExtension, FollowsTheTable)
{
    const QString identifier = preferredTypeIdentifier(QString::fromUtf8(GetParam().extension));

    EXPECT_EQ(identifier, QString::fromLatin1(GetParam().identifier));
}

INSTANTIATE_TEST_SUITE_P(
    Extensions,
    TypeIdentifierOfExtension,
    testing::Values(
        ExtensionCase{"Jpeg", "jpg", "public.jpeg"},
        ExtensionCase{"CaseIsIgnored", "JPG", "public.jpeg"},
        ExtensionCase{"Tiff", "tif", "public.tiff"},
        ExtensionCase{"Gif", "gif", "com.compuserve.gif"},
        ExtensionCase{"BmpHasItsMakersName", "bmp", "com.microsoft.bmp"},
        ExtensionCase{"Jpeg2000IsTheWritersType", "jp2", "public.jp2"},
        ExtensionCase{"Jpeg2000Codestream", "j2k", "public.jp2"},
        ExtensionCase{"Heic", "heic", "public.heic"},
        ExtensionCase{"Photoshop", "psd", "com.adobe.photoshop-image"},
        ExtensionCase{"Pdf", "pdf", "com.adobe.pdf"},
        ExtensionCase{"CameraRaw", "NEF", "com.nikon.raw-image"},
        ExtensionCase{"PlainText", "txt", "public.plain-text"},
        ExtensionCase{"NoExtension", "", "public.data"},
        ExtensionCase{"ActionFile", "c-action", "dyn.ah62d4rv4ge80gppbqr4gw55s"},
        ExtensionCase{"UnknownSql", "sql", "dyn.ah62d4rv4ge81g6pq"},
        ExtensionCase{"UnknownSrt", "SRT", "dyn.ah62d4rv4ge81g6xy"},
        ExtensionCase{"UnknownConf", "conf", "dyn.ah62d4rv4ge80g55sq2"},
        ExtensionCase{"UnknownGpx", "gpx", "dyn.ah62d4rv4ge80s6d2"},
        ExtensionCase{"UnknownXyz", "xyz", "dyn.ah62d4rv4ge81u8p4"}
    ),
    CaseName()
);

struct ContentsCase
{
    const char* name;
    PhotoFormat format;
    const char* identifier;

    friend void PrintTo(const ContentsCase& row, std::ostream* out) { *out << row.name; }
};

class TypeIdentifierOfContents : public testing::TestWithParam<ContentsCase>
{
};

TEST_P(TypeIdentifierOfContents, IgnoresTheName)
{
    const TemporaryFolder folder;
    const QString path
        = PhotoBuilder().format(GetParam().format).write(folder.path(u"photo.txt"_s));

    EXPECT_EQ(typeIdentifierOfContents(path), QString::fromLatin1(GetParam().identifier));
}

INSTANTIATE_TEST_SUITE_P(
    Formats,
    TypeIdentifierOfContents,
    testing::Values(
        ContentsCase{"Jpeg", PhotoFormat::Jpeg, "public.jpeg"},
        ContentsCase{"Png", PhotoFormat::Png, "public.png"},
        ContentsCase{"Tiff", PhotoFormat::Tiff, "public.tiff"},
        ContentsCase{"Bmp", PhotoFormat::Bmp, "com.microsoft.bmp"},
        ContentsCase{"Gif", PhotoFormat::Gif, "com.compuserve.gif"},
        ContentsCase{"Heic", PhotoFormat::Heic, "public.heic"},
        ContentsCase{"Jpeg2000", PhotoFormat::Jpeg2000, "public.jp2"}
    ),
    CaseName()
);

TEST(TypeIdentifierOfContentsOf, NoImageIsEmpty)
{
    const TemporaryFolder folder;

    EXPECT_EQ(typeIdentifierOfContents(folder.write(u"a.jpg"_s, "plain words")), QString());
    EXPECT_EQ(typeIdentifierOfContents(folder.write(u"b.jpg"_s, "")), QString());
    EXPECT_EQ(typeIdentifierOfContents(folder.path(u"missing.jpg"_s)), QString());
}

} // namespace
} // namespace brenvaldo
