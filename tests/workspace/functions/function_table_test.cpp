// SPDX-License-Identifier: GPL-3.0-or-later
#include <workspace/functions/functions.h>

#include <support/case_name.h>

#include <gtest/gtest.h>

using namespace brenvaldo;
using workspace::HolderChange;
using workspace::PresetButtons;
using enum workspace::HolderChange;

namespace {

struct Row
{
    const char* name; ///< the function id
    int index;
    const char* mainView;
    HolderChange preview;
    HolderChange applyOn;
    HolderChange fileType;
    HolderChange destination;
    PresetButtons presetButtons = PresetButtons::Show;
};

void PrintTo(const Row& row, std::ostream* out) { *out << row.name; }

struct Tag
{
    const char* name;
    int tag;
    const char* function; ///< "" for none
};

void PrintTo(const Tag& tag, std::ostream* out) { *out << tag.name; }

class EditFunctions : public testing::TestWithParam<Row>
{
};

class FileManagementFunctions : public testing::TestWithParam<Row>
{
};

class FieldTag : public testing::TestWithParam<Tag>
{
};

const workspace::Functions& builtRows()
{
    static const workspace::Functions functions(workspace::functions());
    return functions;
}

void expectRow(const workspace::Function* row, const Row& expected)
{
    ASSERT_NE(row, nullptr);
    EXPECT_EQ(row->id, QLatin1String(expected.name));
    EXPECT_EQ(row->holders.mainView, QLatin1String(expected.mainView));
    EXPECT_EQ(row->holders.preview, expected.preview);
    EXPECT_EQ(row->holders.applyOn, expected.applyOn);
    EXPECT_EQ(row->holders.fileType, expected.fileType);
    EXPECT_EQ(row->holders.destination, expected.destination);
    EXPECT_EQ(row->presetButtons, expected.presetButtons);
}

} // namespace

TEST_P(EditFunctions, FillTheHoldersOfTheirRow)
{
    expectRow(builtRows().at(workspace::Section::EditPhoto, GetParam().index), GetParam());
}

INSTANTIATE_TEST_SUITE_P(
    FunctionTable,
    EditFunctions,
    testing::Values(
        Row{"textWM", 0, "vwWatermark", Fill, Fill, Fill, Fill},
        Row{"addTint", 1, "vwAddTint", Fill, Fill, Fill, Fill},
        Row{"framing", 2, "vwFraming", Fill, Fill, Fill, Fill},
        Row{"roundings", 3, "vwRoundings", Fill, Fill, Fill, Fill},
        Row{"profileConversion", 4, "vwProfileConversion", Fill, Fill, LeaveAsItWas, LeaveAsItWas},
        Row{"faces", 5, "vwCopyFaces", Empty, Fill, Fill, Fill},
        Row{"rotatePhotos", 6, "vwRotatePhotos", Fill, Fill, Fill, Fill},
        Row{"filters", 7, "vwFilterPhotos", Fill, Fill, Fill, Fill},
        Row{"resizePhotos", 8, "vwResizePhotos", Empty, Fill, Fill, Fill},
        Row{"cropPhotos", 9, "vwCropPhotos", Fill, Fill, Fill, Fill}
    ),
    test::CaseName{}
);

TEST_P(FileManagementFunctions, FillTheHoldersOfTheirRow)
{
    expectRow(builtRows().at(workspace::Section::FileManagement, GetParam().index), GetParam());
}

INSTANTIATE_TEST_SUITE_P(
    FunctionTable,
    FileManagementFunctions,
    testing::Values(
        Row{"manSort", 0, "vwFileManagementSorting", Empty, Empty, Empty, Empty},
        Row{"batchExifUC",
            1,
            "vwFileManagementEXIF",
            Empty,
            Empty,
            Empty,
            Empty,
            PresetButtons::LeaveAsTheyWere},
        Row{"fileRenaming", 2, "vwFileManagementRename", Fill, Empty, Empty, Fill},
        Row{"batchFileConvert",
            3,
            "vwFileManagementConvert",
            Empty,
            Empty,
            Fill,
            Fill,
            PresetButtons::Hide},
        Row{"batchQR", 4, "vwQRBarCode", Empty, Empty, Empty, Fill}
    ),
    test::CaseName{}
);

TEST(FunctionTable, EndsAfterItsRows)
{
    EXPECT_EQ(builtRows().at(workspace::Section::EditPhoto, -1), nullptr);
    EXPECT_EQ(builtRows().at(workspace::Section::EditPhoto, 10), nullptr);
    EXPECT_EQ(builtRows().at(workspace::Section::FileManagement, -1), nullptr);
    EXPECT_EQ(builtRows().at(workspace::Section::FileManagement, 5), nullptr);
}

TEST_P(FieldTag, SelectsTheFunctionOfItsRange)
{
    const workspace::Function* function = builtRows().ofFieldTag(GetParam().tag);

    EXPECT_EQ(function ? function->id : QLatin1String(""), QLatin1String(GetParam().function));
}

INSTANTIATE_TEST_SUITE_P(
    FunctionTable,
    FieldTag,
    testing::Values(
        Tag{"TintFrom400", 400, "addTint"},
        Tag{"TintBeyond", 4000, "addTint"},
        Tag{"ImageFrom300", 300, "imageWM"},
        Tag{"ImageTo399", 399, "imageWM"},
        Tag{"TextFrom200", 200, "textWM"},
        Tag{"TextTo299", 299, "textWM"},
        Tag{"FramingFrom151", 151, "framing"},
        Tag{"FramingTo199", 199, "framing"},
        Tag{"RoundingsFrom101", 101, "roundings"},
        Tag{"RoundingsTo150", 150, "roundings"},
        Tag{"RotationFrom81", 81, "rotatePhotos"},
        Tag{"RotationTo100", 100, "rotatePhotos"},
        Tag{"CropFrom71", 71, "cropPhotos"},
        Tag{"CropTo80", 80, "cropPhotos"},
        Tag{"FiltersFrom51", 51, "filters"},
        Tag{"FiltersTo70", 70, "filters"},
        Tag{"NothingAt50", 50, ""},
        Tag{"NothingAt0", 0, ""}
    ),
    test::CaseName{}
);
