#include "apps/workbench/window/settingsdlg.h"

#include <QCheckBox>
#include <QComboBox>
#include <QCoreApplication>
#include <QDialog>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QSpinBox>

#include "apps/workbench/workspace/settings.h"
#include <tolvi/ui/dialogs/checkstyle.h>

namespace tolvi {
namespace {

struct TTexts {
  Q_DECLARE_TR_FUNCTIONS(tolvi::TSettingsDialog)
};

QSpinBox* MakeNumber(const QString& name, int low, int high, int step, int value) {
  auto* box = new QSpinBox;
  box->setObjectName(name);
  box->setRange(low, high);
  box->setSingleStep(step);
  box->setGroupSeparatorShown(true);
  box->setValue(value);
  return box;
}

QCheckBox* MakeCheck(const QString& name, const QString& caption, bool isOn) {
  auto* box = new QCheckBox(caption);
  box->setObjectName(name);
  box->setChecked(isOn);
  return box;
}

}  // namespace

bool EditSettings(QWidget* parent, TSettings& settings) {
  QDialog dialog(parent);
  dialog.setObjectName(QStringLiteral("settings"));
  dialog.setWindowTitle(TTexts::tr("Settings"));
  auto* theme = new QComboBox;
  theme->setObjectName(QStringLiteral("settings.theme"));
  theme->addItems({TTexts::tr("Those of the system"), TTexts::tr("Light"), TTexts::tr("Dark")});
  theme->setCurrentIndex(settings.Theme);
  QSpinBox* size =
      MakeNumber(QStringLiteral("settings.size"), 5, 48, 1, settings.FontSize == 0 ? 5 : settings.FontSize);
  size->setSpecialValueText(TTexts::tr("That of the system"));
  QCheckBox* preview = MakeCheck(QStringLiteral("settings.preview"),
                                 TTexts::tr("Show the &first rows while a query is edited"), settings.Preview);
  QSpinBox* previewRows = MakeNumber(QStringLiteral("settings.previewRows"), 1, 10'000, 100, settings.PreviewRows);
  QSpinBox* maxRows =
      MakeNumber(QStringLiteral("settings.maxRows"), 0, INT32_MAX, 100'000, static_cast<int>(settings.MaxRows));
  maxRows->setSpecialValueText(TTexts::tr("All"));
  QCheckBox* fragments =
      MakeCheck(QStringLiteral("settings.fragments"), TTexts::tr("&Queries may hold conditions written in SQL"),
                settings.AllowSQLFragments);
  auto* warning =
      new QLabel(TTexts::tr("Such a condition reaches the database as it is. Allow it only for queries that come "
                            "from people whom you trust."));
  warning->setWordWrap(true);
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
  QObject::connect(buttons, &QDialogButtonBox::accepted, &dialog, &QDialog::accept);
  QObject::connect(buttons, &QDialogButtonBox::rejected, &dialog, &QDialog::reject);

  auto* form = new QFormLayout(&dialog);
  form->addRow(TTexts::tr("&Colours:"), theme);
  form->addRow(TTexts::tr("&Size of letters:"), size);
  form->addRow(preview);
  form->addRow(TTexts::tr("&Rows of the preview:"), previewRows);
  form->addRow(TTexts::tr("Rows of a run at &most:"), maxRows);
  form->addRow(fragments);
  form->addRow(warning);
  form->addRow(buttons);
  UseCheckStyle(dialog);
  if (dialog.exec() != QDialog::Accepted) return false;
  settings.Theme = static_cast<TTheme>(theme->currentIndex());
  settings.FontSize = size->value() == size->minimum() ? 0 : size->value();
  settings.Preview = preview->isChecked();
  settings.PreviewRows = previewRows->value();
  settings.MaxRows = maxRows->value();
  settings.AllowSQLFragments = fragments->isChecked();
  return true;
}

}  // namespace tolvi
