// The pages of the wizard that fills a model.
#pragma once

#include <QWidget>
#include <functional>

#include <tolvi/panel/fillwizard.h>

class QBoxLayout;
class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QSpinBox;
class QTabWidget;
class QToolButton;
class QTreeView;

namespace tolvi {

class TFillFieldItems;
class TFillLinkItems;
class TFillReportItems;
class TFillTableItems;
class TFillView;

class TFillPage : public QWidget {
  Q_OBJECT

 public:
  TFillPage(TFillWizard& wizard, QWidget* parent) : QWidget(parent), FWizard(wizard) {}

  /// Shows what the wizard has now.
  virtual void Refresh() = 0;
  /// Takes over what is being typed.
  virtual void Commit() {}
  /// Whether one can go on to the next page.
  virtual bool IsComplete() const { return true; }
  /// Where the user begins.
  virtual QWidget* FirstFocus() const = 0;
  std::function<void()> OnChoose;

 protected:
  TFillWizard& Wizard() const { return FWizard; }
  void Chosen() const {
    if (OnChoose) OnChoose();
  }
  QLineEdit* AddSearch(QBoxLayout& layout);
  QPushButton* AddButton(QBoxLayout& layout, const QString& caption, const QString& toolTip,
                         const std::function<void()>& click);

 private:
  TFillWizard& FWizard;
};

/// Which tables, from which database, and how.
class TFillTablesPage final : public TFillPage {
  Q_OBJECT

 public:
  TFillTablesPage(TFillWizard& wizard, QWidget* parent);

  void Refresh() override;
  /// Takes the options over.
  void Commit() override;
  bool IsComplete() const override { return Wizard().TablesOn() > 0; }
  QWidget* FirstFocus() const override;
  /// The user has chosen another database.
  std::function<void(const QString& name)> OnDatabase;

 private:
  QWidget* BuildOptions();
  void ShowOptions(const TFillOptions& options);
  void CheckNew();
  void ShowCount();

  TFillTableItems* FItems;
  TFillView* FView;
  QComboBox* FDatabase;
  QLabel *FDatabaseLabel, *FCount;
  QToolButton* FFold;
  QCheckBox *FKeys, *FNames, *FRoles, *FLists, *FMixedCase, *FKnown, *FTypes;
  QComboBox* FLinkType;
  QSpinBox* FMaxRows;
};

/// What is added of the tables, and how it is called; and the links.
class TFillChoicePage final : public TFillPage {
  Q_OBJECT

 public:
  TFillChoicePage(TFillWizard& wizard, QWidget* parent);

  void Refresh() override;
  void Commit() override;
  bool IsComplete() const override { return !Wizard().Choice().HasErrors(); }
  QWidget* FirstFocus() const override;

 private:
  QWidget* BuildFields();
  QWidget* BuildLinks();
  void ShowState();

  TFillFieldItems* FFields;
  TFillLinkItems* FLinks;
  TFillView *FFieldView, *FLinkView;
  QPushButton *FRename, *FLists;
  QTabWidget* FTabs;
  QLabel* FState;
};

/// What is going to happen, and what has been found.
class TFillPreviewPage final : public TFillPage {
  Q_OBJECT

 public:
  TFillPreviewPage(TFillWizard& wizard, QWidget* parent);

  void Refresh() override;
  bool IsComplete() const override { return FSomething; }
  QWidget* FirstFocus() const override;

 private:
  TFillReportItems* FItems;
  QTreeView* FTree;
  QLabel *FHead, *FVanished;
  bool FSomething = false;
};

}  // namespace tolvi
