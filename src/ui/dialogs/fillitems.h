// The lists of the wizard that fills a model, as item models: their rows are asked for when they are painted.
#pragma once

#include <QAbstractItemModel>
#include <functional>
#include <vector>

#include <tolvi/foundation/strings.h>
#include <tolvi/panel/fillwizard.h>

namespace tolvi {

/// Rows with check boxes, which a search can narrow.
class TFillItems : public QAbstractItemModel {
  Q_OBJECT

 public:
  /// The choices for an item, a list of texts.
  static constexpr int ChoicesRole = Qt::UserRole + 2;

  using QAbstractItemModel::QAbstractItemModel;

  /// Shows the rows that hold the text; all for an empty one.
  void Find(const QString& text);
  /// Shows the rows anew.
  void Reset();
  /// Checks or unchecks items, all of one column.
  void Check(const QModelIndexList& indexes, bool on);
  /// Something was checked, unchecked or changed. Views repaint all rows: not each is told of.
  std::function<void()> OnChoose;
  /// Whether all rows below this one are shown.
  virtual bool IsWhole(const QModelIndex&) const { return true; }

  QModelIndex parent(const QModelIndex& index) const override;
  bool setData(const QModelIndex& index, const QVariant& value, int role) override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

 protected:
  virtual void BuildRows() = 0;
  virtual void SetOn(const QModelIndex& index, bool on) = 0;
  virtual bool SetText(const QModelIndex& index, const QVariant& value) = 0;
  virtual QString Title(int column) const = 0;
  void Chosen();
  bool IsFound(std::string_view text) const;
  bool IsFindingAll() const { return FSought.isEmpty(); }

 private:
  QString FSought;
};

/// The tables of the catalogue.
class TFillTableItems final : public TFillItems {
  Q_OBJECT

 public:
  enum TColumn { ColTable, ColKind, ColModel, ColumnCount };

  TFillTableItems(TFillWizard& wizard, QObject* parent) : TFillItems(parent), FWizard(wizard) {}
  bool IsNew(const QModelIndex& index) const;

  QModelIndex index(int row, int column, const QModelIndex& parent = {}) const override;
  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& = {}) const override { return ColumnCount; }
  QVariant data(const QModelIndex& index, int role) const override;
  Qt::ItemFlags flags(const QModelIndex& index) const override;

 protected:
  void BuildRows() override;
  void SetOn(const QModelIndex& index, bool on) override;
  bool SetText(const QModelIndex&, const QVariant&) override { return false; }
  QString Title(int column) const override;

 private:
  TFillWizard& FWizard;
  std::vector<std::size_t> FRows;
};

/// What is added: tables, and below them fields.
class TFillFieldItems final : public TFillItems {
  Q_OBJECT

 public:
  enum TColumn { ColName, ColDisplayName, ColGroup, ColKind, ColList, ColumnCount };

  TFillFieldItems(TFillChoice& choice, QObject* parent) : TFillItems(parent), FChoice(choice) {}

  bool IsWhole(const QModelIndex& index) const override;
  QModelIndex index(int row, int column, const QModelIndex& parent = {}) const override;
  QModelIndex parent(const QModelIndex& index) const override;
  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& = {}) const override { return ColumnCount; }
  QVariant data(const QModelIndex& index, int role) const override;
  Qt::ItemFlags flags(const QModelIndex& index) const override;

 protected:
  void BuildRows() override;
  void SetOn(const QModelIndex& index, bool on) override;
  bool SetText(const QModelIndex& index, const QVariant& value) override;
  QString Title(int column) const override;

 private:
  struct TRow {
    std::size_t Table = 0;
    std::vector<std::size_t> Fields;
  };

  const TRow& RowOf(const QModelIndex& index) const;
  std::size_t FieldOf(const QModelIndex& index) const;
  QString Text(const QModelIndex& index) const;
  QString TableText(std::size_t table, int column) const;
  QVariant CheckState(const QModelIndex& index) const;
  TTextFindings Findings(const QModelIndex& index) const;
  QString AccessibleText(const QModelIndex& index) const;

  TFillChoice& FChoice;
  std::vector<TRow> FRows;
};

/// The links that are added.
class TFillLinkItems final : public TFillItems {
  Q_OBJECT

 public:
  enum TColumn { ColLink, ColJoin, ColumnCount };

  TFillLinkItems(TFillChoice& choice, QObject* parent) : TFillItems(parent), FChoice(choice) {}

  QModelIndex index(int row, int column, const QModelIndex& parent = {}) const override;
  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& = {}) const override { return ColumnCount; }
  QVariant data(const QModelIndex& index, int role) const override;
  Qt::ItemFlags flags(const QModelIndex& index) const override;

 protected:
  void BuildRows() override;
  void SetOn(const QModelIndex& index, bool on) override;
  bool SetText(const QModelIndex& index, const QVariant& value) override;
  QString Title(int column) const override;

 private:
  QStringList JoinWords(std::size_t link) const;

  TFillChoice& FChoice;
  std::vector<std::size_t> FRows;
};

/// A report: a row for each kind of change, below it those of that kind.
class TFillReportItems final : public QAbstractItemModel {
  Q_OBJECT

 public:
  using QAbstractItemModel::QAbstractItemModel;

  void SetReport(const TFillReport& report, bool takesTypes);

  QModelIndex index(int row, int column, const QModelIndex& parent = {}) const override;
  QModelIndex parent(const QModelIndex& index) const override;
  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& = {}) const override { return 1; }
  QVariant data(const QModelIndex& index, int role) const override;

 private:
  struct TKind {
    QString Title;
    TStrings Lines;
  };
  std::vector<TKind> FKinds;
};

}  // namespace tolvi
