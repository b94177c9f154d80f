#include "apps/workbench/results/valuedlg.h"

#include <QClipboard>
#include <QDialogButtonBox>
#include <QGuiApplication>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace tolvi {

TValueDlg::TValueDlg(const QString& column, const QString& value, bool isNull, QWidget* parent) : QDialog(parent) {
  setObjectName(QStringLiteral("results.value"));
  setAttribute(Qt::WA_DeleteOnClose);
  setWindowTitle(column);
  auto* text = new QPlainTextEdit(value);
  text->setObjectName(QStringLiteral("results.value.text"));
  text->setReadOnly(true);
  text->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
  text->setAccessibleName(tr("Value of %1").arg(column));
  if (value.isEmpty()) text->setPlaceholderText(isNull ? tr("NULL: there is no value") : tr("An empty text"));
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close);
  auto* copy = buttons->addButton(tr("&Copy"), QDialogButtonBox::ActionRole);
  copy->setObjectName(QStringLiteral("results.value.copy"));
  copy->setEnabled(!value.isEmpty());
  connect(copy, &QPushButton::clicked, this, [value] { QGuiApplication::clipboard()->setText(value); });
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(text);
  layout->addWidget(buttons);
  // As wide as some sixty letters; short values need few lines.
  const QFontMetrics metrics = fontMetrics();
  const qsizetype lines = value.count(u'\n') + value.size() / 60;
  resize(metrics.averageCharWidth() * 64, metrics.lineSpacing() * static_cast<int>(qBound(6, lines + 5, 24)));
}

}  // namespace tolvi
