#include "apps/designer/propertypage.h"

#include <QCheckBox>
#include <QColorDialog>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFontDialog>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QPainter>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScrollArea>
#include <QSpinBox>
#include <QToolButton>
#include <algorithm>
#include <cstring>

namespace tolvi {
namespace {

constexpr int maxPixels = 999, shownLines = 4;

/// "linkWordColor" as "Link word color".
QString LabelOf(const QMetaProperty& property) {
  QString label;
  for (const char* letter = property.name(); *letter != '\0'; ++letter) {
    const QChar next = QLatin1Char(*letter);
    if (label.isEmpty())
      label += next.toUpper();
    else
      label += next.isUpper() ? QStringLiteral(" ") + next.toLower() : QString(next);
  }
  return label;
}

QIcon Swatch(const QColor& color, const QSize& size) {
  if (!color.isValid()) return {};
  QPixmap pixmap(size);
  pixmap.fill(color);
  return QIcon(pixmap);
}

void ShowColor(QPushButton& button, const QVariant& value) {
  const auto color = value.value<QColor>();
  button.setIcon(Swatch(color, button.iconSize()));
  button.setText(color.isValid() ? color.name() : TPropertyPage::tr("by the palette"));
}

QVariant ChooseColor(const QVariant& value, QWidget* parent) {
  const auto color = value.value<QColor>();
  const QColor chosen = QColorDialog::getColor(color.isValid() ? color : QColor(Qt::black), parent);
  return chosen.isValid() ? QVariant(chosen) : QVariant();
}

void ShowFont(QPushButton& button, const QVariant& value) {
  const auto font = value.value<QFont>();
  const bool isSet = font.resolveMask() != 0;
  button.setText(isSet ? QStringLiteral("%1, %2").arg(font.family()).arg(font.pointSize())
                       : TPropertyPage::tr("as the panel"));
  QFont shown = isSet ? font : QFont();
  shown.setPointSize(QFont().pointSize());
  button.setFont(shown);
}

QVariant ChooseFont(const QVariant& value, QWidget* parent) {
  bool isChosen = false;
  const QFont font = QFontDialog::getFont(&isChosen, value.value<QFont>(), parent);
  return isChosen ? QVariant(font) : QVariant();
}

/// A font that sets what the program's font has is another one than a font that sets nothing.
bool IsSame(const QVariant& one, const QVariant& other) {
  const bool areFonts = one.typeId() == QMetaType::QFont && other.typeId() == QMetaType::QFont;
  return one == other && (!areFonts || one.value<QFont>().resolveMask() == other.value<QFont>().resolveMask());
}

/// A button that shows the value and chooses another one by a dialog, and one for the default value.
class TChoiceEditor final : public QWidget {
 public:
  using TShow = void (*)(QPushButton& button, const QVariant& value);
  /// An invalid value when the user chooses none.
  using TChoose = QVariant (*)(const QVariant& value, QWidget* parent);

  TChoiceEditor(const QVariant& value, const QVariant& byDefault, TShow show, TChoose choose,
                std::function<void(const QVariant&)> changed)
      : FValue(value), FShow(show), FChanged(std::move(changed)) {
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins({});
    FButton = new QPushButton;
    auto* reset = new QPushButton(TPropertyPage::tr("Default"));
    for (QPushButton* button : {FButton, reset}) button->setAutoDefault(false);
    row->addWidget(FButton, 1);
    row->addWidget(reset);
    setFocusProxy(FButton);
    connect(FButton, &QPushButton::clicked, this, [this, choose] {
      const QVariant chosen = choose(FValue, this);
      if (chosen.isValid()) Set(chosen);
    });
    connect(reset, &QPushButton::clicked, this, [this, byDefault] { Set(byDefault); });
    FShow(*FButton, FValue);
  }

 private:
  void Set(const QVariant& value) {
    FValue = value;
    FShow(*FButton, value);
    FChanged(value);
  }

  QVariant FValue;
  const TShow FShow;
  const std::function<void(const QVariant&)> FChanged;
  QPushButton* FButton;
};

}  // namespace

std::vector<QMetaProperty> OwnProperties(const QMetaObject& metaObject) {
  int first = metaObject.propertyCount();
  for (const QMetaObject* own = &metaObject; own && !std::strncmp(own->className(), "tolvi::", 7);
       own = own->superClass())
    first = own->propertyOffset();
  std::vector<QMetaProperty> properties;
  for (int i = first; i < metaObject.propertyCount(); ++i) {
    const QMetaProperty property = metaObject.property(i);
    if (property.isStored() && property.isWritable() && property.isDesignable()) properties.push_back(property);
  }
  return properties;
}

TPropertyPage::TPropertyPage(const TDesignWidget& kind, const QWidget& widget, QWidget* parent) : QDialog(parent) {
  setWindowTitle(tr("%1 - Properties").arg(widget.objectName()));
  auto* page = new QWidget;
  auto* rows = new QFormLayout(page);
  FPreview = kind.Create(nullptr);
  FPreview->setObjectName(QStringLiteral("preview"));
  const std::vector<QMetaProperty> properties = OwnProperties(*widget.metaObject());
  for (const char* name : {"text", "font", "palette"}) FPreview->setProperty(name, widget.property(name));
  for (const QMetaProperty& property : properties) {
    FGiven[QLatin1String(property.name())] = property.read(&widget);
    property.write(FPreview, property.read(&widget));
  }
  if (kind.ShowExample) kind.ShowExample(*FPreview);
  for (const QMetaProperty& property : properties) {
    QWidget* editor = MakeEditor(property);
    if (!editor) continue;
    editor->setObjectName(QLatin1String(property.name()));
    if (const char* help = PropertyHelp(property.name())) editor->setToolTip(QString::fromUtf8(help));
    rows->addRow(LabelOf(property), editor);
  }

  auto* area = new QScrollArea;
  area->setWidget(page);
  area->setWidgetResizable(true);
  area->setFrameShape(QFrame::NoFrame);
  area->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  area->setMinimumWidth(page->sizeHint().width() + style()->pixelMetric(QStyle::PM_ScrollBarExtent));
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
  connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  auto* right = new QVBoxLayout;
  right->addWidget(FPreview, kind.ShowExample ? 1 : 0);
  if (!kind.ShowExample) right->addStretch();
  auto* top = new QHBoxLayout;
  top->addWidget(area);
  top->addLayout(right, 1);
  auto* all = new QVBoxLayout(this);
  all->addLayout(top, 1);
  all->addWidget(buttons);
  const int letter = fontMetrics().averageCharWidth(), line = fontMetrics().lineSpacing();
  resize(area->minimumWidth() + 70 * letter,
         std::min(page->sizeHint().height(), 30 * line) + 3 * buttons->sizeHint().height());
}

QVariantMap TPropertyPage::GetChanges() const {
  QVariantMap changes;
  for (auto given = FGiven.begin(); given != FGiven.end(); ++given) {
    const QVariant value = FPreview->property(given.key().toLatin1());
    if (!IsSame(value, given.value())) changes[given.key()] = value;
  }
  return changes;
}

std::function<void(const QVariant& value)> TPropertyPage::Setter(const QMetaProperty& property) {
  return [this, property](const QVariant& value) {
    property.write(FPreview, value);
    FPreview->updateGeometry();
    FPreview->update();
  };
}

QWidget* TPropertyPage::MakeEditor(const QMetaProperty& property) {
  if (property.isFlagType()) return MakeFlagsEditor(property);
  if (property.isEnumType()) return MakeEnumEditor(property);
  const QVariant value = property.read(FPreview);
  const auto set = Setter(property);
  switch (property.typeId()) {
    case QMetaType::QColor:
      return MakeColorEditor(property);
    case QMetaType::QFont:
      return MakeFontEditor(property);
    case QMetaType::QStringList:
      return MakeLinesEditor(property);
    case QMetaType::Bool: {
      auto* box = new QCheckBox;
      box->setChecked(value.toBool());
      connect(box, &QCheckBox::toggled, this, set);
      return box;
    }
    case QMetaType::Int: {
      auto* box = new QSpinBox;
      box->setRange(-1, maxPixels);
      box->setValue(value.toInt());
      connect(box, &QSpinBox::valueChanged, this, set);
      return box;
    }
    case QMetaType::QString: {
      auto* line = new QLineEdit(value.toString());
      connect(line, &QLineEdit::textChanged, this, set);
      return line;
    }
    default:
      return nullptr;
  }
}

QVariant TPropertyPage::DefaultOf(const QMetaProperty& property) {
  const QVariant value = property.read(FPreview);
  property.reset(FPreview);
  QVariant byDefault = property.read(FPreview);
  property.write(FPreview, value);
  return byDefault;
}

QWidget* TPropertyPage::MakeColorEditor(const QMetaProperty& property) {
  return new TChoiceEditor(property.read(FPreview), DefaultOf(property), ShowColor, ChooseColor, Setter(property));
}

QWidget* TPropertyPage::MakeFontEditor(const QMetaProperty& property) {
  return new TChoiceEditor(property.read(FPreview), DefaultOf(property), ShowFont, ChooseFont, Setter(property));
}

QWidget* TPropertyPage::MakeEnumEditor(const QMetaProperty& property) {
  auto* box = new QComboBox;
  const QMetaEnum values = property.enumerator();
  for (int i = 0; i < values.keyCount(); ++i) box->addItem(QLatin1String(values.key(i)), values.value(i));
  box->setCurrentIndex(box->findData(property.read(FPreview).toInt()));
  connect(box, &QComboBox::currentIndexChanged, this,
          [box, set = Setter(property)](int index) { set(box->itemData(index)); });
  return box;
}

QWidget* TPropertyPage::MakeFlagsEditor(const QMetaProperty& property) {
  auto* boxes = new QWidget;
  auto* rows = new QVBoxLayout(boxes);
  rows->setContentsMargins({});
  const QMetaEnum flags = property.enumerator();
  for (int i = 0; i < flags.keyCount(); ++i) {
    auto* box = new QCheckBox(QLatin1String(flags.key(i)));
    const int flag = flags.value(i);
    box->setChecked(property.read(FPreview).toInt() & flag);
    connect(box, &QCheckBox::toggled, this, [this, property, flag](bool on) {
      const int others = property.read(FPreview).toInt() & ~flag;
      Setter(property)(on ? others | flag : others);
    });
    rows->addWidget(box);
  }
  return boxes;
}

QWidget* TPropertyPage::MakeLinesEditor(const QMetaProperty& property) {
  auto* edit = new QPlainTextEdit(property.read(FPreview).toStringList().join(u'\n'));
  edit->setTabChangesFocus(true);
  edit->setLineWrapMode(QPlainTextEdit::NoWrap);
  edit->setFixedHeight((shownLines + 1) * edit->fontMetrics().lineSpacing());
  connect(edit, &QPlainTextEdit::textChanged, this,
          [edit, set = Setter(property)] { set(edit->toPlainText().split(u'\n', Qt::SkipEmptyParts)); });
  return edit;
}

}  // namespace tolvi
