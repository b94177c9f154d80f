#include <QApplication>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QProcess>
#include <QProgressDialog>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <csignal>
#include <map>

#include <gtest/gtest.h>
#include <sys/resource.h>

#include "apps/workbench/export/exportdlg.h"
#include "apps/workbench/export/exportjob.h"
#include "resultdata.h"
#include <tolvi/foundation/errors.h>

namespace tolvi {
namespace {

const std::shared_ptr<TResultRows> Sample =
    ResultOf({"a", "b;c", "a"}, {{{svText, "=1,\"2\"\r\n"}, {svNumber, "12345678901234567890.10"}, {svBoolean, "true"}},
                                 {{svNull, ""}, {svDate, "2025-01-31"}, {svText, ""}},
                                 {{svBytes, std::string("\0\xFF", 2)}, {svNumber, "-1.50"}, {svText, "x|y\tz"}}});

class RowFiles : public testing::Test {
 protected:
  QString Path(const char* name) const { return folder.filePath(QLatin1String(name)); }

  static std::string Content(const QString& file) {
    QFile source(file);
    return source.open(QIODevice::ReadOnly) ? source.readAll().toStdString() : "(none)";
  }

  std::string Written(TRowFileFormat format, const TResultRows& rows, const std::vector<std::uint32_t>& order = {}) {
    EXPECT_TRUE(WriteRowFile(Path("rows"), format, {rows, order}));
    return Content(Path("rows"));
  }

  /// A part of the spreadsheet that was written.
  QString Part(const char* part) const {
    QProcess unzip;
    unzip.start(
        QStringLiteral("python3"),
        {QStringLiteral("-c"),
         QStringLiteral("import sys,zipfile;sys.stdout.buffer.write(zipfile.ZipFile(sys.argv[1]).read(sys.argv[2]))"),
         Path("rows"), QLatin1String(part)});
    EXPECT_TRUE(unzip.waitForFinished());
    return QString::fromUtf8(unzip.readAllStandardOutput());
  }

  QTemporaryDir folder;
};

TEST_F(RowFiles, TextFormatsAreExactToTheByte) {
  const std::vector<std::uint32_t> order{2, 0, 1};
  EXPECT_EQ(
      Written(rfCsv, *Sample),
      "a,b;c,a\r\n\"=1,\"\"2\"\"\r\n\",12345678901234567890.10,true\r\n,2025-01-31,\"\"\r\n00ff,-1.50,x|y\tz\r\n");
  EXPECT_EQ(Written(rfCsvSemicolon, *Sample, order),
            "\xEF\xBB\xBF"
            "a;\"b;c\";a\r\n00ff;-1.50;x|y\tz\r\n\"=1,\"\"2\"\"\r\n\";12345678901234567890.10;true\r\n"
            ";2025-01-31;\"\"\r\n");
  EXPECT_EQ(
      Written(rfTsv, *Sample),
      "a\tb;c\ta\n\"=1,\"\"2\"\"\r\n\"\t12345678901234567890.10\ttrue\n\t2025-01-31\t\"\"\n00ff\t-1.50\t\"x|y\tz\"\n");
  EXPECT_EQ(Written(rfJson, *Sample),
            "[\n{\"a\": \"=1,\\\"2\\\"\\u000d\\n\", \"b;c\": 12345678901234567890.10, \"a_2\": true},\n"
            "{\"a\": null, \"b;c\": \"2025-01-31\", \"a_2\": \"\"},\n"
            "{\"a\": \"00ff\", \"b;c\": -1.50, \"a_2\": \"x|y\\u0009z\"}\n]\n");
  EXPECT_EQ(Written(rfMarkdown, *Sample),
            "| a          |                     b;c | a      |\n"
            "| ---------- | ----------------------: | ------ |\n"
            "| =1,\"2\"<br> | 12345678901234567890.10 | true   |\n"
            "|            |              2025-01-31 |        |\n"
            "| 00ff       |                   -1.50 | x\\|y z |\n");
}

TEST_F(RowFiles, ASpreadsheetHoldsValuesAsTheirKind) {
  const auto rows =
      ResultOf({"N", "D", "T"}, {{{svNumber, "12.50"}, {svDate, "2025-01-31"}, {svText, "=1+1 & <b>"}},
                                 {{svNumber, "1234567890123456"}, {svDate, "1850-05-01"}, {svText, "_x0041_\x01"}},
                                 {{svNumber, "-3"}, {svDateTime, "2025-01-31 12:30:00"}, {svBoolean, "true"}},
                                 {{svNumber, "-Inf"}, {svNull, ""}, {svTime, "06:00:00.250"}}});
  Written(rfXlsx, *rows);
  const QString sheet = Part("xl/worksheets/sheet1.xml");
  for (const char* part :
       {"<pane ySplit=\"1\" topLeftCell=\"A2\"", "<autoFilter ref=\"A1:C5\"/>",
        "<c r=\"A1\" s=\"1\" t=\"inlineStr\"><is><t>N<", "<c r=\"A2\" s=\"2\"><v>12.5</v>",
        "<c r=\"A3\" t=\"inlineStr\"><is><t>1234567890123456</t>", "<c r=\"A4\" s=\"4\"><v>-3</v>",
        "<c r=\"A5\" t=\"inlineStr\"><is><t>-Inf<", "<c r=\"B2\" s=\"3\"><v>45688</v>", "<t>1850-05-01<",
        "<v>45688.52083333", "<t>=1+1 &amp; &lt;b&gt;<", "<c r=\"C4\" t=\"b\"><v>1</v>", "<v>0.25000289"}) {
    EXPECT_TRUE(sheet.contains(QLatin1String(part))) << part;
  }
  EXPECT_FALSE(sheet.contains(QStringLiteral("r=\"B5\"")));
  const QString styles = Part("xl/styles.xml");
  for (const char* format : {"\"yyyy-mm-dd\"", "\"yyyy-mm-dd hh:mm:ss\"", "\"hh:mm:ss.000\""}) {
    EXPECT_TRUE(styles.contains(QLatin1String(format))) << format;
  }
  // Sheets know "0.00" as number 2, and some versions of the library write that.
  EXPECT_TRUE(styles.contains(QStringLiteral("\"0.00\"")) || styles.contains(QStringLiteral("numFmtId=\"2\"")));
}

TEST_F(RowFiles, WhatASheetCannotHoldIsToldAndTheOldFileStays) {
  Written(rfCsv, *ResultOf({"old"}, {}));
  const auto fault = [](const QString& file, TRowFileFormat format, const TResultRows& rows) {
    try {
      WriteRowFile(file, format, {rows, {}});
    } catch (const EFileError& error) {
      return error.Message();
    }
    return std::string();
  };
  const std::string path = Path("rows").toStdString();
  EXPECT_EQ(fault(Path("rows"), rfXlsx, *ResultOf({"a", "b"}, {{{svNull, ""}, {svText, std::string(32768, 'x')}}})),
            "The file \"" + path +
                "\" cannot be written: the text in row 1, column 2 has 32,768 letters, and a cell holds 32,767");
  EXPECT_EQ(fault(Path("rows"), rfXlsx, *ResultOf(std::vector<std::string>(16385, "a"), {})),
            "The file \"" + path + "\" cannot be written: there are 16,385 columns, and a sheet holds 16,384");
  EXPECT_EQ(fault(Path("rows"), rfXlsx, *CountedResult(1048576)),
            "The file \"" + path + "\" cannot be written: there are 1,048,576 rows, and a sheet holds 1,048,575");
  EXPECT_EQ(Content(Path("rows")), "old\r\n");
  EXPECT_EQ(fault(Path("none/rows"), rfCsv, *Sample),
            "The file \"" + Path("none/rows").toStdString() + "\" cannot be written: No such file or directory");
}

TEST_F(RowFiles, AFullDiskIsTold) {
  const auto rows = CountedResult(50000);
  std::signal(SIGXFSZ, SIG_IGN);
  rlimit usual{};
  getrlimit(RLIMIT_FSIZE, &usual);
  const rlimit small{100'000, usual.rlim_max};
  for (const TRowFileFormat format : {rfCsv, rfXlsx}) {
    setrlimit(RLIMIT_FSIZE, &small);
    bool isThrown = false;
    try {
      WriteRowFile(Path("rows"), format, {*rows, {}});
    } catch (const EFileError&) {
      isThrown = true;
    }
    setrlimit(RLIMIT_FSIZE, &usual);
    EXPECT_TRUE(isThrown) << int{format};
  }
  EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files | QDir::Hidden), QStringList());
}

TEST_F(RowFiles, AStoppedFileIsNotLeftBehind) {
  const auto rows = CountedResult(5000);
  for (const TRowFileFormat format : {rfCsv, rfXlsx, rfMarkdown}) {
    std::size_t last = 0;
    EXPECT_FALSE(WriteRowFile(Path("rows"), format, {*rows, {}}, [&last](std::size_t done) {
      last = done;
      return done < 2000;
    }));
    EXPECT_EQ(last, 2000U);
  }
  EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files | QDir::Hidden), QStringList());
}

TEST_F(RowFiles, AJobTellsOfItsEndAndStopsWhenItGoes) {
  TExportJob job(Sample, {2, 1, 0});
  int ended = 0;
  job.OnEnd = [&ended](bool written, const QString& fault) {
    EXPECT_TRUE(written);
    EXPECT_EQ(fault, QString());
    ++ended;
  };
  job.Start(Path("rows"), rfTsv);
  EXPECT_TRUE(QTest::qWaitFor([&ended] { return ended > 0; }));
  EXPECT_EQ(ended, 1);
  EXPECT_EQ(Content(Path("rows")).substr(0, 12), "a\tb;c\ta\n00ff");
  {
    TExportJob endless(CountedResult(400000), {});
    endless.OnEnd = [](bool, const QString&) { FAIL(); };
    endless.Start(Path("none.csv"), rfCsv);
  }
  QCoreApplication::processEvents();
  EXPECT_FALSE(QFile::exists(Path("none.csv")));
}

TEST_F(RowFiles, TheDialogRemembersFolderAndFormatAndTellsWhatFails) {
  std::map<QString, QVariant> stored{{QStringLiteral("export.folder"), folder.path()},
                                     {QStringLiteral("export.format"), int{rfMarkdown}}};
  const TMemory memory{[&stored](const QString& key) { return stored[key]; },
                       [&stored](const QString& key, const QVariant& value) { stored[key] = value; }};
  const auto choose = [](const QString& name, const QString& filter) {
    QTimer::singleShot(0, [name, filter] {
      auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
      ASSERT_NE(dialog, nullptr);
      auto* line = dialog->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
      if (name.isEmpty()) {
        EXPECT_EQ(line->text(), QStringLiteral("a_b"));
      }
      if (!filter.isEmpty()) {
        dialog->selectNameFilter(filter);
        Q_EMIT dialog->filterSelected(filter);
      }
      if (!name.isEmpty()) line->setText(name);
      QTest::keyClick(line, Qt::Key_Return);
    });
  };
  choose({}, {});
  EXPECT_EQ(ExportRows(nullptr, Sample, {}, QStringLiteral("a/b"), memory), Path("a_b.md"));
  EXPECT_EQ(Content(Path("a_b.md")).substr(0, 3), "| a");
  choose(QStringLiteral("other"), QStringLiteral("JSON (*.json)"));
  EXPECT_EQ(ExportRows(nullptr, Sample, {}, QString(), memory), Path("other.json"));
  EXPECT_EQ(Content(Path("other.json")).substr(0, 2), "[\n");
  EXPECT_EQ(stored[QStringLiteral("export.format")].toInt(), int{rfJson});
  // The end of a typed name counts.
  choose(QStringLiteral("typed.csv"), {});
  EXPECT_EQ(ExportRows(nullptr, Sample, {}, QString(), memory), Path("typed.csv"));
  EXPECT_EQ(Content(Path("typed.csv")).substr(0, 4), "a,b;");

  QString told;
  QTimer retry;
  QObject::connect(&retry, &QTimer::timeout, &retry, [&told] {
    auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    if (box == nullptr) return;
    told = box->text();
    QTest::keyClick(box, Qt::Key_Escape);
  });
  retry.start(10);
  EXPECT_FALSE(ExportRowsTo(nullptr, Sample, {}, Path("none/x.csv"), rfCsv));
  EXPECT_TRUE(told.contains(QStringLiteral("none/x.csv\" cannot be written: No such file")));
}

TEST_F(RowFiles, WhatTakesLongShowsProgressAndCanBeStopped) {
  // As many as a sheet holds: packing them takes seconds.
  const auto rows = CountedResult(1'048'575);
  bool isShown = false;
  QTimer look;
  QObject::connect(&look, &QTimer::timeout, &look, [&isShown] {
    auto* dialog = qobject_cast<QProgressDialog*>(QApplication::activeModalWidget());
    if (dialog == nullptr || dialog->value() <= 0) return;
    isShown = true;
    EXPECT_EQ(dialog->findChild<QLabel*>()->textFormat(), Qt::PlainText) << dialog->labelText().toStdString();
    QTest::keyClick(dialog, Qt::Key_Escape);
  });
  look.start(20);
  EXPECT_FALSE(ExportRowsTo(nullptr, rows, {}, Path("<img src=x>.xlsx"), rfXlsx));
  EXPECT_TRUE(isShown);
  EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files | QDir::Hidden), QStringList());
}

TEST_F(RowFiles, NamesOfQueriesBecomeNamesOfFiles) {
  EXPECT_EQ(FileNameOf(QStringLiteral("../A: b?\n. ")), QStringLiteral("_A_ b__"));
  EXPECT_EQ(FileNameOf(QStringLiteral("Grüße 2025")), QStringLiteral("Grüße 2025"));
}

}  // namespace
}  // namespace tolvi
