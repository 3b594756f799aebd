#include "tools/ReportFile.h"
#include "platform/RunTimeError.h"
#include "platform/richtext/RtfReader.h"
#include "platform/richtext/RtfWriter.h"
#include "state/ApplicationState.h"
#include "state/Paths.h"
#include "state/SettingsFile.h"
#include "support/ErrorNumber.h"
#include "support/PrintText.h"
#include "support/TempRoot.h"
#include "tools/GotoLine.h"
#include "tools/ReportPlace.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QFileInfo>

namespace varnhold::test {

using namespace Qt::StringLiterals;

TEST(GotoLine, ReadsWhatIsTyped)
{
    using Kind = GotoLine::Kind;
    const struct
    {
        const char* text;
        Kind kind;
        int line;
    } rows[] = {{"", Kind::Nowhere, 0},
                {"words", Kind::Nowhere, 0},
                {"99999999999", Kind::Nowhere, 0},
                {"0", Kind::OwnLine, 0},
                {"-5", Kind::End, 0},
                {"1", Kind::Line, 0},
                {" 42 ", Kind::Line, 41},
                {"2147483647", Kind::Line, 2147483646},
                {"1e400", Kind::Nowhere, 0}};
    for (const auto& row : rows)
        EXPECT_EQ(GotoLine::from(QString::fromLatin1(row.text)), (GotoLine{row.kind, row.line})) << row.text;
}

TEST(ReportFile, HoldsEveryTitleAndStaysInItsFolder)
{
    TempRoot root;
    const Paths paths = root.paths();
    const QString text = u"A-[<b>\tx\u202e \U0001F600 {\\}]\r\nPkg:\t01\n02\r\n"_s;
    const RichText contents = reportContents(text);
    EXPECT_EQ(contents.plainText(), u"A-[<b>\tx\u202e \U0001F600 {\\}]\nPkg:\t01\u202802\n"_s);
    EXPECT_EQ(readRtf(writeRtf(contents)).plainText(), contents.plainText());
    EXPECT_EQ(contents.paragraphs.front().runs.front().format, reportLetters());

    for (const QString& id : {u"../../ab"_s, u"/"_s, u"a/b"_s, u"a\0b"_s})
        EXPECT_EQ(errorNumberOf([&] { (void)reportPath(paths, id); }), errors::pathFileAccess)
            << id.toStdString();
    EXPECT_EQ(reportPath(paths, u"."_s), paths.root + u"/..rtf"_s);
    EXPECT_EQ(reportPath(paths, {}), paths.root + u"/.rtf"_s);

    root.write(u"target"_s, "mine");
    const QString path = reportPath(paths, u"BLUS1"_s);
    ASSERT_TRUE(QFile::link(root.path(u"target"_s), path));
    saveReport(path, contents);
    EXPECT_FALSE(QFileInfo(path).isSymLink()) << "the link itself goes, not what it points at";
    EXPECT_EQ(root.read(u"target"_s), "mine");
    root.makeFolder(u"BLUS2.rtf"_s);
    EXPECT_EQ(errorNumberOf([&] { saveReport(reportPath(paths, u"BLUS2"_s), contents); }),
              errors::pathFileAccess);
}

TEST(ReportPlace, FallsBackKeyByKeyAndStaysWithinReach)
{
    const WindowPlace main{100, 200, 447, 289};
    const WindowPlace least{0, 0, 380, 220};
    const ScreenAreas left{{0, 0, 1400, 1000}, {0, 0, 1400, 960}};
    const ScreenAreas right{{1400, 0, 2400, 1000}, {1400, 0, 2400, 1000}};
    const struct
    {
        const char* x;
        const char* y;
        const char* width;
        const char* height;
        WindowPlace place;
    } rows[] = {
        {"", "", "", "", {100, 200, 447, 289}},
        {"words", "300", "7500", "", {100, 20, 500, 289}},
        {"0", "0", "0", "-5", {0, 0, 380, 220}},
        {"1000000000", "1000000000", "1000000000", "1000000000", {2320, 968, 2400, 1000}},
        {"-90000", "-300", "7500", "4500", {-420, 0, 500, 300}},
        {"30000", "150", "7500", "4500", {2000, 10, 500, 300}},
    };
    TempRoot root;
    const ApplicationState state;
    SettingsFile file(root.paths(), state);
    for (const auto& row : rows) {
        root.write(u"Settings.ini"_s, QByteArray("[Position]\r\nRTFbox X=") + row.x +
                                          "\r\nRTFbox Y=" + row.y + "\r\nRTFbox W=" + row.width +
                                          "\r\nRTFbox H=" + row.height + "\r\n");
        const WindowPlace read = readReportPlace(file, main, least, {left, right});
        EXPECT_EQ(read, row.place) << row.x << ' ' << read.x << ' ' << read.y << ' ' << read.width << ' '
                                   << read.height;
        writeReportPlace(file, read, true);
        EXPECT_EQ(readReportPlace(file, main, least, {left, right}), read) << "no drift";
    }
}

} // namespace varnhold::test
