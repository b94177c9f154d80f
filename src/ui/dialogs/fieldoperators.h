#pragma once

#include <QWidget>

#include <tolvi/ui/dialogs/fieldform.h>
class QAction;
class QListWidget;

namespace tolvi {

/// Which operators fields offer, in which order. An operator that only some of several fields offer stands in both
/// lists.
class TFieldOperators final : public QWidget {
  Q_OBJECT

 public:
  TFieldOperators(TModelEditor& editor, TEditCall edit, QWidget* parent);

  void ShowFields(const TFieldIDs& ids);

 private:
  using TOperatorsCall = void (*)(const std::vector<TDSField*>&, const std::vector<TDSOperator*>&);

  QWidget* MakeOffered();
  QWidget* MakeMissing();
  std::vector<TDSField*> Fields() const;
  std::vector<TDSOperator*> Selected(const QListWidget& list) const;
  void Change(const QString& step, const QListWidget& list, TOperatorsCall change);
  void Step(int step);
  void OfferAll();
  void WithdrawAll();
  void ShowEnabled();

  TModelEditor& FEditor;
  const TEditCall FEdit;
  TFieldIDs FIDs;
  QListWidget *FOffered, *FMissing;
  QAction *FWithdraw, *FWithdrawAll, *FUp, *FDown, *FOffer, *FOfferAll;
};

}  // namespace tolvi
