// The data model of the window: its editor, its diagram, its file.
#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QDialog>
#include <QDialogButtonBox>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QMessageBox>
#include <QStatusBar>
#include <QToolBar>
#include <QVBoxLayout>

#include "apps/workbench/window/mainwindow.h"
#include <tolvi/ui/controls/waitcursor.h>
#include <tolvi/ui/dialogs/modeldlg.h>
#include <tolvi/ui/panels/stdspnl.h>
#include <tolvi/ui/qtext.h>
#include <tolvi/xml/modelxml.h>

namespace tolvi {
namespace {

QString ModelFilter() {
  return QCoreApplication::translate("tolvi::TMainWindow", "Data models (*.model *.xml);;All files (*)");
}

std::vector<TModelFormat> XmlFormat() {
  return {{QCoreApplication::translate("tolvi::TMainWindow", "XML documents"), QStringLiteral("xml"),
           [](const QString& file, TJCustomDBStructure& model) { LoadModelFromXmlFile(model, ToPath(file)); },
           [](const QString& file, const TJCustomDBStructure& model) { SaveModelToXmlFile(model, ToPath(file)); }}};
}

}  // namespace

void TMainWindow::ModelChanged() {
  RefreshTitle();
  FRefresh.start();
}

void TMainWindow::EditModelByDialog() {
  if (!FWorkspace) return;
  delete FDiagram;  // its places are on the editor's page, too
  FWorkspace->Model().SetDMEButtons({dmbOpenSave});
  T_dlgModelEdit dialog(FWorkspace->Model(), XmlFormat(), this);
  dialog.setObjectName(QStringLiteral("model"));
  FModelDialog = &dialog;
  if (dialog.exec() == QDialog::Accepted) {
    statusBar()->showMessage(tr("Changes of the model are in use now. Model > Save keeps them."), 10'000);
  }
  RefreshCommands();
  RefreshTitle();
}

void TMainWindow::EditDiagram() {
  if (!FWorkspace) return;
  if (FDiagram) {
    FDiagram->activateWindow();
    return;
  }
  auto* window = new QDialog(this, Qt::Window);
  window->setAttribute(Qt::WA_DeleteOnClose);
  window->setObjectName(QStringLiteral("diagram"));
  window->setWindowTitle(tr("Diagram of the model"));
  auto* panel = new TJStructDesignPanel;
  panel->setObjectName(QStringLiteral("diagram.panel"));
  panel->SetDBStruct(&FWorkspace->Model());
  panel->SetEditor(&FWorkspace->ModelEditor());
  panel->SetShowActionHints(true);
  panel->SetShowMinimap(true);
  panel->OnError = [this](TJStructDesignPanel&, const QString& words) { TellFault(words); };
  auto* rows = new QVBoxLayout(window);
  rows->setContentsMargins(0, 0, 0, 0);
  auto* tools = new QToolBar;
  tools->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
  for (QAction* action : panel->GetActions()) tools->addAction(action);
  rows->addWidget(tools);
  rows->addWidget(panel, 1);
  window->resize(size() * 0.9);
  FDiagram = window;
  connect(window, &QObject::destroyed, this, [this] { RefreshCommands(); });
  window->show();
  Try([panel] { panel->SetActive(true); });
}

void TMainWindow::StepModel(void (TModelEditor::*step)()) {
  if (!FWorkspace) return;
  Try([&] { (FWorkspace->ModelEditor().*step)(); });
  RefreshCommands();
  RefreshTitle();
}

void TMainWindow::SaveModel() {
  if (!FWorkspace || !Try([this] { FWorkspace->SaveModel(); })) return;
  statusBar()->showMessage(tr("The model is saved in %1.").arg(QDir::toNativeSeparators(FWorkspace->GetModelFile())),
                           10'000);
  RefreshTitle();
}

void TMainWindow::SaveModelAs() {
  if (!FWorkspace) return;
  QFileDialog dialog(this, tr("Save the model"), FWorkspace->GetModelFile(), ModelFilter());
  dialog.setAcceptMode(QFileDialog::AcceptSave);
  dialog.setDefaultSuffix(QStringLiteral("model"));
  if (dialog.exec() != QDialog::Accepted) return;
  const QString file = dialog.selectedFiles().constFirst();
  if (!Try([&] { FWorkspace->SaveModelAs(file); })) return;
  FSettings.Remember(FWorkspace->GetSource());
  RefreshTitle();
}

void TMainWindow::LoadModel() {
  if (!FWorkspace || !MayLeaveModel()) return;
  const QString folder = QFileInfo(FWorkspace->GetModelFile()).absolutePath();
  const QString file = QFileDialog::getOpenFileName(this, tr("Load a model"), folder, ModelFilter());
  if (file.isEmpty() || !Try([&] { FWorkspace->UseModel(file); })) return;
  FSettings.Remember(FWorkspace->GetSource());
  RefreshCommands();
  RefreshTitle();
}

void TMainWindow::RefreshModel() {
  if (!FWorkspace) return;
  TFillReport report;
  if (!Try([&] {
        const TWaitCursor wait;
        report = FWorkspace->RefreshModel();
      }))
    return;
  RefreshCommands();
  if (report.Empty()) return Tell(tr("The model has all tables and columns of the database."));
  TellModelNews(report);
}

void TMainWindow::TellModelNews(const TFillReport& report) {
  const auto count = [](const TStrings& lines) { return static_cast<int>(lines.Count()); };
  const std::pair<int, QString> news[] = {
      {count(report.AddedTables), tr("%n new table(s)", nullptr, count(report.AddedTables))},
      {count(report.AddedFields), tr("%n new column(s)", nullptr, count(report.AddedFields))},
      {count(report.AddedLinks), tr("%n new link(s)", nullptr, count(report.AddedLinks))}};
  const int gone = count(report.VanishedTables) + count(report.VanishedFields) + count(report.VanishedLinks),
            changed = count(report.ChangedTypes);
  QStringList added;
  for (const auto& [number, words] : news) {
    if (number > 0) added << words;
  }
  QStringList sentences{added.isEmpty() ? tr("The database has no new tables and columns.")
                                        : tr("New in the model: %1.").arg(added.join(tr(", ")))};
  if (gone > 0)
    sentences << tr("%n table(s), column(s) or link(s) of the model are not in the database.", nullptr, gone);
  if (changed > 0)
    sentences << tr("%n column(s) have another type in the database than in the model.", nullptr, changed);
  const QString words = sentences.join(u' ');
  Tell(words, {{tr("Show..."), [this, words, lines = ToQStringList(report.ToStrings())] {
                  QMessageBox box(QMessageBox::Information, QGuiApplication::applicationDisplayName(), words,
                                  QMessageBox::Ok, this);
                  box.setObjectName(QStringLiteral("news"));
                  box.setTextFormat(Qt::PlainText);
                  box.setDetailedText(lines.join(u'\n'));
                  // Shown for its details.
                  for (QAbstractButton* button : box.buttons()) {
                    if (box.buttonRole(button) == QMessageBox::ActionRole) button->click();
                  }
                  box.exec();
                }}});
}

}  // namespace tolvi
