#include <QLabel>
#include <QListView>
#include <QStringListModel>
#include <QVBoxLayout>
#include <algorithm>
#include <utility>

#include <tolvi/ui/dialogs/modelcheckpane.h>
#include <tolvi/ui/qtext.h>

namespace tolvi {

TModelCheckPane::TModelCheckPane(QWidget* parent)
    : QWidget(parent), FSummary(new QLabel(this)), FList(new QListView(this)), FItems(new QStringListModel(this)) {
  FList->setModel(FItems);
  FList->setUniformItemSizes(true);
  FList->setEditTriggers(QAbstractItemView::NoEditTriggers);
  FList->setTextElideMode(Qt::ElideNone);
  FList->setAccessibleName(tr("What is wrong with the model"));
  FSummary->setTextFormat(Qt::PlainText);
  setFocusProxy(FList);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(FSummary);
  layout->addWidget(FList);
  const auto activate = [this](const QModelIndex& index) {
    if (!index.isValid() || !OnActivate) return;
    const TCheckFinding finding = FFindings[static_cast<std::size_t>(index.row())];
    OnActivate(finding);
  };
  connect(FList, &QAbstractItemView::activated, this, activate, Qt::QueuedConnection);
}

void TModelCheckPane::ShowFindings(std::vector<TCheckFinding> findings) {
  QStringList lines;
  for (const TCheckFinding& finding : findings) {
    const QString place = finding.Place.empty() ? QString() : ToQString(finding.Place) + QStringLiteral(": ");
    lines << (finding.Severity == csError ? tr("Error") : tr("Warning")) + QStringLiteral(": ") + place +
                 ToQString(finding.Text);
  }
  const auto errors = std::count_if(findings.begin(), findings.end(),
                                    [](const TCheckFinding& finding) { return finding.Severity == csError; });
  FSummary->setText(
      findings.empty()
          ? tr("Nothing is wrong with the model.")
          : tr("Errors: %1, warnings: %2").arg(errors).arg(static_cast<qsizetype>(findings.size()) - errors));
  const int row = FList->currentIndex().row();
  FFindings = std::move(findings);
  if (FItems->stringList() != lines) FItems->setStringList(lines);
  if (!lines.isEmpty()) FList->setCurrentIndex(FItems->index(std::clamp(row, 0, static_cast<int>(lines.size()) - 1)));
}

}  // namespace tolvi
