// The texts of a titles table as an item model, and the part of it that a search finds.
#pragma once

#include <QSortFilterProxyModel>
#include <QStandardItemModel>
#include <vector>

#include <tolvi/foundation/strings.h>

namespace tolvi {

/// A row for each section, below it one for each key; without sections the keys alone. The column of the texts can be
/// edited: an empty text becomes the default one, line breaks become blanks.
class TTitlesModel final : public QStandardItemModel {
  Q_OBJECT

 public:
  enum TColumn { ColKey, ColDefault, ColText, ColNote, ColumnCount };

  TTitlesModel(const TStrings& defaults, QObject* parent);

  /// The lines of the defaults with the texts in use.
  TStrings GetTitles() const;
  /// Default texts, replaced by those of `titles`, a list as `GetTitles` returns it or a file.
  void SetTitles(const TStrings& titles);

  bool IsChanged(const QModelIndex& index) const;
  /// Back to the default text. A section has none.
  void Reset(const QModelIndex& index);
  bool IsAnyChanged() const;
  int GetFaultCount() const;

  QVariant data(const QModelIndex& index, int role) const override;
  bool setData(const QModelIndex& index, const QVariant& value, int role) override;

 private:
  const TStrings FDefaults;
  /// For each line of the defaults its text; null for lines that are none.
  std::vector<QStandardItem*> FTexts;
};

/// The rows in which any column holds what is searched, ignoring case and accents, and their sections. Rows that are
/// edited stay until the next search.
class TTitlesFilter final : public QSortFilterProxyModel {
  Q_OBJECT

 public:
  TTitlesFilter(TTitlesModel& model, QObject* parent);
  void Find(const QString& text);

 protected:
  bool filterAcceptsRow(int row, const QModelIndex& parent) const override;

 private:
  QString FFolded;
};

}  // namespace tolvi
