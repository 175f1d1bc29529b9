#include "tests/support/add_row.h"
#include "tests/support/enum_row.h"
#include "tests/support/json_text.h"
#include "tests/support/message_text.h"
#include "vrx_api/vrx_api_ferrant_info.h"

#include <gmock/gmock.h>

#include <regex>

using namespace vrx;
using test::readText;
using test::refusal;
using test::wide;
using test::written;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

namespace
{

constexpr const char* kEmptyInfo =
    R"({"name":"","version":"","ferrant_interface":"uconnect","parasolid_mode":"direct"})";
constexpr const char* kInfo =
    R"({"name":"T","version":"2","ferrant_interface":"legacy",)"
    R"("thirdparty_cores":[{"name":"k","version":"1"},{"name":"","version":""}],"parasolid_mode":"kernel",)"
    R"("import_formats":[{"description":"STEP files","extensions":["stp","step"],"filters":["stp;step","p21"]}],)"
    R"("export_formats":[{"description":"","extensions":[],"filters":[]}]})";

Format formatOf(const char* filterExtensions)
{
    Format format;
    format.addFilterExtensions(wide(filterExtensions));
    return format;
}

const test::EnumRow kEnums[] = {
    test::enumRow("EFerrantInterface of FerrantInfo", "ferrant_interface", &FerrantInfo::requestedInterface,
                  &FerrantInfo::setRequestedInterface, {"uconnect", "connect", "legacy"}, "uconnect"),
    test::enumRow("EParasolidMode", "parasolid_mode", &FerrantInfo::parasolidMode, &FerrantInfo::setParasolidMode,
                  {"direct", "kernel"}, "direct"),
};

class InfoEnums : public test::EnumRows
{
};

constexpr const char* kSilently = nullptr;

const test::AddRow kAdds[] = {
    test::addRow("FerrantInfo::addThirdpartyCore", &FerrantInfo::addThirdpartyCore, kSilently),
    test::addRow("FerrantInfo::addImportFormat", &FerrantInfo::addImportFormat, kSilently),
    test::addAllRow("FerrantInfo::addImportFormats", &FerrantInfo::addImportFormats, kSilently),
    test::addRow("FerrantInfo::addExportFormat", &FerrantInfo::addExportFormat, kSilently),
    test::addAllRow("FerrantInfo::addExportFormats", &FerrantInfo::addExportFormats, kSilently),
};

class InfoAdds : public test::AddRows
{
};

} // namespace

TEST_P(InfoEnums, HaveTheirNames)
{
    check(GetParam());
}
INSTANTIATE_TEST_SUITE_P(FerrantInfo, InfoEnums, testing::ValuesIn(kEnums), InfoEnums::nameOf);

TEST_P(InfoAdds, RefuseNulls)
{
    check(GetParam());
}
INSTANTIATE_TEST_SUITE_P(FerrantInfo, InfoAdds, testing::ValuesIn(kAdds), InfoAdds::nameOf);

TEST(FerrantInfo, WritesItsListsOnlyWhenTheyHoldSomething)
{
    FerrantInfo info;
    EXPECT_EQ(written(info), kEmptyInfo);

    info.setName(WIDE("T"));
    info.setVersion(WIDE("2"));
    info.setRequestedInterface(EFerrantInterface::Legacy);
    info.setParasolidMode(EParasolidMode::Kernel);
    info.newThirdpartyCore().setName(WIDE("k")).setVersion(WIDE("1"));
    info.newThirdpartyCore();
    info.newImportFormat()
        .setDescription(WIDE("STEP files"))
        .addExtension(WIDE("x"))
        .setExtensions({WIDE("stp")})
        .addExtension(WIDE("step"))
        .addFilterExtensions(WIDE("stp;step"))
        .addFilterExtensions(WIDE("p21"));
    info.newExportFormat();
    EXPECT_EQ(written(info), kInfo);
}

TEST(FerrantInfo, ReadsAndWrites)
{
    const struct
    {
        const char* in;
        const char* out;
    } rows[] = {
        {"{}", kEmptyInfo},
        {kInfo, kInfo},
        {R"({"name":1,"version":null,"ferrant_interface":2,"thirdparty_cores":{},"parasolid_mode":1,)"
         R"("import_formats":{},"export_formats":"stp"})",
         kEmptyInfo},
        {R"({"ferrant_interface":"connect","import_formats":[{"filters":["a",1,null,"b"],"extensions":"stp"}]})",
         R"({"name":"","version":"","ferrant_interface":"connect","parasolid_mode":"direct",)"
         R"("import_formats":[{"description":"","extensions":[],"filters":["a","b"]}]})"},
    };
    for (const auto& row : rows)
    {
        FerrantInfo info;
        readText(info, row.in);
        EXPECT_EQ(written(info), row.out) << row.in;
    }
}

TEST(FerrantInfo, KeepsWhatItReadBeforeItRefuses)
{
    FerrantInfo info;
    EXPECT_EQ(refusal([&] { readText(info, "[]"); }), "Invalid json document");
    EXPECT_EQ(refusal([&] { readText(info, R"({"name":"T","thirdparty_cores":[{"name":"k"},7],"version":"2"})"); }),
              "ThirdpartyCore::readFrom > !jsonObject.IsObject()");
    EXPECT_EQ(info.name(), WIDE("T"));
    EXPECT_EQ(info.version(), WIDE("2"));
    EXPECT_THAT(info.thirdpartyCores(), SizeIs(1));
    EXPECT_EQ(refusal([&] { readText(info, R"({"import_formats":[[]],"export_formats":[{}]})"); }),
              "Format::readFrom > !jsonObject.IsObject()");
    EXPECT_THAT(info.importFormats(), IsEmpty());
    EXPECT_THAT(info.exportFormats(), IsEmpty());
}

TEST(FerrantInfo, AddsToItsListsAndSharesThemWithCopies)
{
    FerrantInfo info;
    readText(info, kInfo);
    readText(info, kInfo);
    EXPECT_THAT(info.thirdpartyCores(), SizeIs(4));
    info.addImportFormats(info.importFormats());
    ASSERT_THAT(info.importFormats(), SizeIs(4));
    EXPECT_EQ(info.importFormats()[3], info.importFormats()[1]);

    const FerrantInfo copy = info;
    info.newExportFormat();
    EXPECT_EQ(copy.importFormats(), info.importFormats());
    EXPECT_THAT(copy.exportFormats(), SizeIs(2));
}

TEST(Format, GivesOneFilterAnEntry)
{
    Format format;
    format.setDescription(WIDE("STEP")).setExtensions({WIDE("stp")});
    EXPECT_THAT(format.getFilters(), IsEmpty());
    EXPECT_FALSE(format.is(WIDE("a.stp")));
    format.addFilterExtensions(WIDE("stp;STEP")).addFilterExtensions(WIDE(""));
    EXPECT_THAT(format.getFilters(), ElementsAre(WIDE("STEP|stp;STEP"), WIDE("STEP|")));
}

TEST(Format, RecognisesItsFiles)
{
    const struct
    {
        const char* filterExtensions;
        const char* path;
        bool is;
    } rows[] = {
        {"stp;STEP", "a.step", true},
        {"stp;STEP", "C:\\dir.x\\Part.STP", true},
        {"stp;STEP", "a.stpx", false},
        {"stp;STEP", "a.stp ", false},
        {"stp;STEP", "stp", false},
        {"stp;STEP", ".stp", true},
        {"stp;STEP", "a.stp\n", false},
        {"stp", "a\nb.stp", false},
        {"prt.*", "box.prt.12", true},
        {"prt.*", "box.prt", false},
        {"prt.*", "box.prt.1\n2", false},
        {"a*b*c", "x.a1b2b3c", true},
        {"a*b*c", "x.a1c2b", false},
        {"*.stp", "part.stp", false},
        {"*.stp", "a.b.stp", true},
        {"s.p", "a.stp", false},
        {"stp;", "a.", true},
        {"stp;;igs", "a.igs", true},
        {"stp;", "a", false},
        {"", "a.", true},
        // The syntax of regular expressions
        {"c\\+", "a.c+", true},
        {"c+", "a.ccc", true},
        {"c+", "a.c+", false},
        {"[ij]gs", "a.JGS", true},
        {"(prt|asm).*", "a.asm.7", true},
        {"x|whole", "whole", true},
    };
    for (const auto& row : rows)
    {
        EXPECT_EQ(formatOf(row.filterExtensions).is(wide(row.path)), row.is) << row.filterExtensions << ' ' << row.path;
    }
    EXPECT_THROW(formatOf("stp;(").is(WIDE("a.igs")), std::regex_error);
    EXPECT_TRUE(formatOf("stp;(").is(WIDE("a.stp")));
}

TEST(Format, RecognisesALongPath)
{
    const wstring path = wstring(1'000'000, WIDE('d')) + WIDE(".prt.1");
    EXPECT_TRUE(formatOf("prt.*").is(path));
    EXPECT_FALSE(formatOf("stp").is(path));
}
