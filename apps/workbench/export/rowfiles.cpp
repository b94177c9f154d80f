#include "apps/workbench/export/rowfiles.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QSaveFile>
#include <memory>
#include <ostream>
#include <streambuf>

#include "apps/rowformats/rowwriter.h"
#include "apps/workbench/export/xlsxfile.h"
#include <tolvi/foundation/errors.h>
#include <tolvi/ui/qtext.h>

namespace tolvi {
namespace {

struct TTexts {
  Q_DECLARE_TR_FUNCTIONS(tolvi::TRowFiles)
};

constexpr std::size_t ProgressStep = 1000;

/// A stream into a device; what the device refuses makes the stream bad.
class TDeviceBuffer final : public std::streambuf {
 public:
  explicit TDeviceBuffer(QIODevice& device) : FDevice(device) { setp(FBuffer, FBuffer + sizeof(FBuffer)); }

 private:
  int_type overflow(int_type character) override {
    if (sync() != 0) return traits_type::eof();
    if (!traits_type::eq_int_type(character, traits_type::eof())) sputc(traits_type::to_char_type(character));
    return traits_type::not_eof(character);
  }
  int sync() override {
    const std::ptrdiff_t size = pptr() - pbase();
    if (FDevice.write(pbase(), size) != size) return -1;
    setp(FBuffer, FBuffer + sizeof(FBuffer));
    return 0;
  }

  QIODevice& FDevice;
  char FBuffer[1 << 16];
};

std::unique_ptr<TRowWriter> MakeWriter(TRowFileFormat format, std::ostream& out) {
  switch (format) {
    case rfCsvSemicolon:
      return MakeCsvWriter(out, {.Separator = ';', .LineEnd = "\r\n", .ByteOrderMark = true});
    case rfTsv:
      return MakeCsvWriter(out, {.Separator = '\t'});
    case rfJson:
      return MakeJsonWriter(out);
    case rfMarkdown:
      return MakeMarkdownWriter(out);
    default:
      return MakeCsvWriter(out, {.LineEnd = "\r\n"});
  }
}

/// False when stopped, or when the stream is bad.
bool WriteText(std::ostream& out, TRowFileFormat format, const TSortedRows& rows, const TRowFileProgress& progress) {
  const auto writer = MakeWriter(format, out);
  const std::size_t count = rows.GetRowCount(), columns = rows.Rows.Columns().size();
  std::vector<TCell> cells(columns);
  writer->Begin(rows.Rows.Columns());
  for (std::size_t row = 0; row < count; ++row) {
    if (row % ProgressStep == 0 && (!out || (progress && !progress(row)))) return false;
    for (std::size_t i = 0; i < columns; ++i) {
      const TCellView cell = rows.Cell(row, i);
      cells[i] = {cell.Kind, cell.Text};
    }
    writer->Row(cells);
  }
  writer->End();
  return static_cast<bool>(out.flush());
}

[[noreturn]] void Raise(const QString& file, const QString& reason) {
  throw EFileError(FromQString(TTexts::tr("The file \"%1\" cannot be written: %2").arg(file, reason)));
}

}  // namespace

std::vector<TRowFileKind> RowFileKinds() {
  return {{rfCsv, TTexts::tr("CSV, separated by commas"), QStringLiteral("csv")},
          {rfCsvSemicolon, TTexts::tr("CSV, separated by semicolons"), QStringLiteral("csv")},
          {rfTsv, TTexts::tr("Text, separated by tabs"), QStringLiteral("tsv")},
          {rfXlsx, TTexts::tr("Spreadsheet"), QStringLiteral("xlsx")},
          {rfJson, TTexts::tr("JSON"), QStringLiteral("json")},
          {rfMarkdown, TTexts::tr("Table in Markdown"), QStringLiteral("md")}};
}

bool WriteRowFile(const QString& file, TRowFileFormat format, const TSortedRows& rows,
                  const TRowFileProgress& progress) {
  // A device would be replaced by a file.
  if (const QFileInfo info(file); info.exists() && !info.isFile()) Raise(file, TTexts::tr("it is no file"));
  QSaveFile target(file);
  if (!target.open(QIODevice::WriteOnly)) Raise(file, target.errorString());
  bool isWritten = false;
  if (format == rfXlsx) {
    try {
      isWritten = WriteXlsx(target, rows, progress);
    } catch (const EFileError& error) {
      Raise(file, ToQString(error.Message()));
    }
  } else {
    TDeviceBuffer buffer(target);
    std::ostream out(&buffer);
    isWritten = WriteText(out, format, rows, progress);
    if (!out) Raise(file, target.errorString());
  }
  if (!isWritten) return false;
  if (!target.commit()) Raise(file, target.errorString());
  return true;
}

}  // namespace tolvi
