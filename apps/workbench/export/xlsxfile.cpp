#include "apps/workbench/export/xlsxfile.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QLocale>
#include <QStorageInfo>
#include <QTemporaryDir>
#include <algorithm>
#include <cctype>
#include <charconv>
#include <clocale>
#include <cmath>
#include <cstdio>
#include <map>
#include <memory>
#include <optional>

#include <xlsxwriter.h>

#include "apps/rowformats/celldisplay.h"
#include <tolvi/foundation/errors.h>
#include <tolvi/ui/qtext.h>

namespace tolvi {
namespace {

struct TTexts {
  Q_DECLARE_TR_FUNCTIONS(tolvi::TXlsxFile)
};

constexpr std::size_t MostRows = LXW_ROW_MAX - 1, MostColumns = LXW_COL_MAX, ProgressStep = 1000, MeasuredRows = 100;
constexpr qsizetype MostLetters = 32767;
/// A double holds so many digits of any number.
constexpr std::size_t MostDigits = 15;
/// Decimals that a format shows; numbers with more are shown as the sheet likes.
constexpr std::size_t MostDecimals = 9;
/// In letters of the usual font.
constexpr double LeastWidth = 8, MostWidth = 60;

[[noreturn]] void Raise(const QString& reason) { throw EFileError(FromQString(reason)); }

void Check(lxw_error error) {
  if (error != LXW_NO_ERROR) Raise(QString::fromUtf8(lxw_strerror(error)));
}

/// The library writes numbers by the locale of the thread, and a sheet wants points.
class TPointLocale final {
 public:
  TPointLocale() : FLocale(newlocale(LC_NUMERIC_MASK, "C", nullptr)), FBefore(uselocale(FLocale)) {}
  ~TPointLocale() {
    uselocale(FBefore);
    freelocale(FLocale);
  }
  TPointLocale(const TPointLocale&) = delete;
  TPointLocale& operator=(const TPointLocale&) = delete;

 private:
  locale_t FLocale, FBefore;
};

/// A number as a sheet can hold it, and how many decimals it is written with.
struct TNumber {
  double value;
  std::size_t decimals;
  bool hasExponent;
};
std::optional<TNumber> ExactNumber(std::string_view text) {
  const std::size_t exponent = std::min(text.find_first_of("eE"), text.size());
  const std::string_view mantissa = text.substr(0, exponent);
  std::string digits;
  for (const char c : mantissa) {
    if (std::isdigit(static_cast<unsigned char>(c)) != 0) digits += c;
  }
  const std::size_t first = digits.find_first_not_of('0'), last = digits.find_last_not_of('0');
  if (first != std::string::npos && last - first + 1 > MostDigits) return {};
  double value = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
  if (error != std::errc() || end != text.data() + text.size() || !std::isfinite(value)) return {};
  const std::size_t point = mantissa.find('.');
  return TNumber{value, point == std::string_view::npos ? 0 : mantissa.size() - point - 1, exponent < text.size()};
}

bool IsDigits(std::string_view text, std::size_t at, std::size_t count) {
  return text.size() >= at + count && std::all_of(text.begin() + static_cast<std::ptrdiff_t>(at),
                                                  text.begin() + static_cast<std::ptrdiff_t>(at + count),
                                                  [](char c) { return c >= '0' && c <= '9'; });
}

int Whole(std::string_view text, std::size_t at, std::size_t count) {
  int value = 0;
  std::from_chars(text.data() + at, text.data() + at + count, value);
  return value;
}

/// "yyyy-mm-dd" of the years that a sheet knows.
bool ReadDay(std::string_view text, lxw_datetime& moment) {
  if (text.size() != 10 || !IsDigits(text, 0, 4) || !IsDigits(text, 5, 2) || !IsDigits(text, 8, 2)) return false;
  moment.year = Whole(text, 0, 4);
  moment.month = Whole(text, 5, 2);
  moment.day = Whole(text, 8, 2);
  return moment.year >= 1900 && moment.month >= 1 && moment.month <= 12 && moment.day >= 1 && moment.day <= 31;
}

/// "hh:mm:ss" of one day, with milliseconds where there are any.
bool ReadTime(std::string_view text, lxw_datetime& moment) {
  if (!IsDigits(text, 0, 2) || !IsDigits(text, 3, 2) || !IsDigits(text, 6, 2)) return false;
  const std::string_view rest = text.substr(8);
  if (!rest.empty() && (rest.size() != 4 || rest[0] != '.' || !IsDigits(rest, 1, 3))) return false;
  moment.hour = Whole(text, 0, 2);
  moment.min = Whole(text, 3, 2);
  moment.sec = Whole(text, 6, 2) + (rest.empty() ? 0 : Whole(rest, 1, 3) / 1000.0);
  return moment.hour < 24 && moment.min < 60 && moment.sec < 60;
}

std::optional<lxw_datetime> ReadMoment(const TCellView& cell) {
  lxw_datetime moment{};
  const std::string_view text = cell.Text;
  if (cell.Kind == svDate) return ReadDay(text, moment) ? std::optional(moment) : std::nullopt;
  if (cell.Kind == svTime) return ReadTime(text, moment) ? std::optional(moment) : std::nullopt;
  const bool isRead = text.size() > 11 && ReadDay(text.substr(0, 10), moment) && ReadTime(text.substr(11), moment);
  return isRead ? std::optional(moment) : std::nullopt;
}

class TSheet final {
 public:
  explicit TSheet(const QString& file, const QString& folder) : FFolder(QFile::encodeName(folder)) {
    lxw_workbook_options options{};
    options.constant_memory = LXW_TRUE;
    options.use_zip64 = LXW_TRUE;
    options.tmpdir = FFolder.data();
    FBook.reset(workbook_new_opt(QFile::encodeName(file).constData(), &options));
    if (FBook) FSheet = workbook_add_worksheet(FBook.get(), nullptr);
    if (FSheet == nullptr) Check(LXW_ERROR_CREATING_TMPFILE);
  }

  void WriteHead(const TSortedRows& rows) {
    lxw_format* bold = workbook_add_format(FBook.get());
    format_set_bold(bold);
    const std::vector<std::string>& columns = rows.Rows.Columns();
    for (std::size_t i = 0; i < columns.size(); ++i) WriteText(0, i, columns[i], bold);
    for (std::size_t i = 0; i < columns.size(); ++i) {
      std::size_t width = DisplayWidth(columns[i]) + 3;
      for (std::size_t row = 0; row < std::min(rows.GetRowCount(), MeasuredRows); ++row) {
        const TCellView cell = rows.Cell(row, i);
        width = std::max(width, cell.Kind == svBytes ? 2 * cell.Text.size() : DisplayWidth(cell.Text) + 1);
      }
      const auto at = static_cast<lxw_col_t>(i);
      Check(
          worksheet_set_column(FSheet, at, at, std::clamp(static_cast<double>(width), LeastWidth, MostWidth), nullptr));
    }
    worksheet_freeze_panes(FSheet, 1, 0);
    if (columns.empty()) return;
    Check(worksheet_autofilter(FSheet, 0, 0, static_cast<lxw_row_t>(rows.GetRowCount()),
                               static_cast<lxw_col_t>(columns.size() - 1)));
  }

  void Write(std::size_t row, std::size_t column, const TCellView& cell) {
    const auto line = static_cast<lxw_row_t>(row);
    const auto at = static_cast<lxw_col_t>(column);
    switch (cell.Kind) {
      case svNull:
        return;
      case svBoolean:
        return Check(worksheet_write_boolean(FSheet, line, at, cell.Text == "true" ? 1 : 0, nullptr));
      case svNumber:
        if (const auto number = ExactNumber(cell.Text)) {
          return Check(worksheet_write_number(FSheet, line, at, number->value, NumberFormat(*number)));
        }
        break;
      case svDate:
      case svTime:
      case svDateTime:
        if (auto moment = ReadMoment(cell)) {
          return Check(worksheet_write_datetime(FSheet, line, at, &*moment, MomentFormat(cell)));
        }
        break;
      case svBytes:
        return WriteText(row, column, HexDigits(cell.Text), nullptr);
      case svText:
        break;
    }
    WriteText(row, column, cell.Text, nullptr);
  }

  void Close() {
    CheckDisk();
    Check(workbook_close(FBook.release()));
  }

 private:
  struct TFree {
    void operator()(lxw_workbook* book) const { lxw_workbook_free(book); }
  };

  // The library does not tell when the disk is full, and would leave rows out. It keeps them in a file, and packs them
  // by way of another one.
  void CheckDisk() const {
    std::FILE* kept = FSheet->optimize_tmpfile;
    const bool isKept = std::fflush(kept) == 0 && std::ferror(kept) == 0;
    const qint64 room = QStorageInfo(QFile::decodeName(FFolder)).bytesAvailable();
    if (!isKept || room < 2 * std::ftell(kept)) {
      Raise(TTexts::tr("the folder for temporary files, \"%1\", is full").arg(QDir::tempPath()));
    }
  }

  void WriteText(std::size_t row, std::size_t column, std::string_view text, lxw_format* format) {
    // The library takes UTF-8 that ends with a NUL.
    QString letters = ToQString(text);
    if (letters.size() > MostLetters) {
      Raise(TTexts::tr("the text in row %1, column %2 has %3 letters, and a cell holds %4")
                .arg(QString::number(row), QString::number(column + 1), QLocale().toString(letters.size()),
                     QLocale().toString(MostLetters)));
    }
    letters.replace(QChar::Null, QChar::ReplacementCharacter);
    Check(worksheet_write_string(FSheet, static_cast<lxw_row_t>(row), static_cast<lxw_col_t>(column),
                                 letters.toUtf8().constData(), format));
  }

  lxw_format* Format(const std::string& pattern) {
    lxw_format*& format = FFormats[pattern];
    if (format == nullptr) {
      format = workbook_add_format(FBook.get());
      format_set_num_format(format, pattern.c_str());
    }
    return format;
  }
  lxw_format* NumberFormat(const TNumber& number) {
    if (number.hasExponent || number.decimals > MostDecimals) return nullptr;
    return Format(number.decimals == 0 ? "0" : "0." + std::string(number.decimals, '0'));
  }
  lxw_format* MomentFormat(const TCellView& cell) {
    const std::string day = cell.Kind == svTime ? "" : "yyyy-mm-dd";
    if (cell.Kind == svDate) return Format(day);
    const bool isExact = cell.Text.find('.') != std::string_view::npos;
    return Format(day + (day.empty() ? "" : " ") + (isExact ? "hh:mm:ss.000" : "hh:mm:ss"));
  }

  QByteArray FFolder;
  std::unique_ptr<lxw_workbook, TFree> FBook;
  lxw_worksheet* FSheet = nullptr;
  std::map<std::string, lxw_format*> FFormats;
};

void CheckSize(const TSortedRows& rows) {
  const auto tooMany = [](const QString& words, std::size_t count, std::size_t most) {
    if (count > most) Raise(words.arg(QLocale().toString(qulonglong{count}), QLocale().toString(qulonglong{most})));
  };
  tooMany(TTexts::tr("there are %1 rows, and a sheet holds %2"), rows.GetRowCount(), MostRows);
  tooMany(TTexts::tr("there are %1 columns, and a sheet holds %2"), rows.Rows.Columns().size(), MostColumns);
}

void Copy(const QString& file, QIODevice& target) {
  QFile source(file);
  if (!source.open(QIODevice::ReadOnly)) Raise(source.errorString());
  while (!source.atEnd()) {
    const QByteArray part = source.read(1 << 20);
    if (part.isEmpty()) Raise(source.errorString());
    if (target.write(part) != part.size()) Raise(target.errorString());
  }
}

}  // namespace

bool WriteXlsx(QIODevice& target, const TSortedRows& rows, const TRowFileProgress& progress) {
  CheckSize(rows);
  const QTemporaryDir folder;
  if (!folder.isValid()) Raise(folder.errorString());
  const QString file = folder.filePath(QStringLiteral("rows.xlsx"));
  {
    const TPointLocale locale;
    TSheet sheet(file, folder.path());
    sheet.WriteHead(rows);
    const std::size_t count = rows.GetRowCount(), columns = rows.Rows.Columns().size();
    for (std::size_t row = 0; row < count; ++row) {
      if (row % ProgressStep == 0 && progress && !progress(row)) return false;
      for (std::size_t i = 0; i < columns; ++i) sheet.Write(row + 1, i, rows.Cell(row, i));
    }
    if (progress && !progress(count)) return false;
    sheet.Close();
  }
  Copy(file, target);
  return true;
}

}  // namespace tolvi
