#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPointer>
#include <QRegularExpressionValidator>
#include <QScreen>
#include <QScrollArea>
#include <QTabWidget>
#include <QTableWidget>
#include <exception>

#include <tolvi/model/dbstruc.h>
#include <tolvi/model/formatpresets.h>
#include <tolvi/panel/modeleditor.h>
#include <tolvi/ui/dialogs/checkstyle.h>
#include <tolvi/ui/dialogs/modelsettings.h>
#include <tolvi/ui/dialogs/scrolled.h>
#include <tolvi/ui/dialogs/sqltext.h>
#include <tolvi/ui/qtext.h>

namespace tolvi {

struct T_dlgModelSettings::TText {
  const char *Label, *Hint;
  /// A single character, or none.
  bool IsCharacter;
  std::string (*Get)(const TSQLFormats& formats, const TDMOptions& options);
  void (*Set)(TSQLFormats& formats, TDMOptions& options, std::string_view text);
};

struct T_dlgModelSettings::TFlag {
  const char* Label;
  bool (*Get)(const TSQLFormats& formats, const TDMOptions& options);
  void (*Set)(TSQLFormats& formats, TDMOptions& options, bool on);
};

namespace {

template <auto Get>
std::string FormatText(const TSQLFormats& formats, const TDMOptions&) {
  return (formats.*Get)();
}
template <auto Set>
void SetFormatText(TSQLFormats& formats, TDMOptions&, std::string_view text) {
  (formats.*Set)(text);
}
template <auto Get>
std::string FormatCharacter(const TSQLFormats& formats, const TDMOptions&) {
  const char character = (formats.*Get)();
  return character == '\0' ? std::string() : std::string(1, character);
}
template <auto Set>
void SetFormatCharacter(TSQLFormats& formats, TDMOptions&, std::string_view text) {
  (formats.*Set)(text.empty() ? '\0' : text.front());
}
template <auto Get>
std::string OptionText(const TSQLFormats&, const TDMOptions& options) {
  return (options.*Get)();
}
template <auto Set>
void SetOptionText(TSQLFormats&, TDMOptions& options, std::string_view text) {
  (options.*Set)(text);
}
template <auto Get>
bool FormatFlag(const TSQLFormats& formats, const TDMOptions&) {
  return (formats.*Get)();
}
template <auto Set>
void SetFormatFlag(TSQLFormats& formats, TDMOptions&, bool on) {
  (formats.*Set)(on);
}
template <auto Get>
bool OptionFlag(const TSQLFormats&, const TDMOptions& options) {
  return (options.*Get)();
}
template <auto Set>
void SetOptionFlag(TSQLFormats&, TDMOptions& options, bool on) {
  (options.*Set)(on);
}

/// The first of `Texts` and `Flags` that belong to the databases.
constexpr std::size_t FirstOptionText = 11, FirstOptionFlag = 2;

constexpr const char* GroupCaptions[] = {QT_TRANSLATE_NOOP("tolvi::T_dlgModelSettings", "&In list"),
                                         QT_TRANSLATE_NOOP("tolvi::T_dlgModelSettings", "Bet&ween"),
                                         QT_TRANSLATE_NOOP("tolvi::T_dlgModelSettings", "&Starts with"),
                                         QT_TRANSLATE_NOOP("tolvi::T_dlgModelSettings", "&Contains")};

}  // namespace

const T_dlgModelSettings::TText T_dlgModelSettings::Texts[] = {
    {QT_TR_NOOP("Opening &quote of names:"), "", true, FormatCharacter<&TSQLFormats::GetQuoteSymbol1>,
     SetFormatCharacter<&TSQLFormats::SetQuoteSymbol1>},
    {QT_TR_NOOP("C&losing quote of names:"), "", true, FormatCharacter<&TSQLFormats::GetQuoteSymbol2>,
     SetFormatCharacter<&TSQLFormats::SetQuoteSymbol2>},
    {QT_TR_NOOP("F&ull table name:"), QT_TR_NOOP("DB, OWNER and TABLE stand for the names"), false,
     FormatText<&TSQLFormats::GetFullTableName>, SetFormatText<&TSQLFormats::SetFullTableName>},
    {QT_TR_NOOP("&True:"), "", false, FormatText<&TSQLFormats::GetTrueValue>,
     SetFormatText<&TSQLFormats::SetTrueValue>},
    {QT_TR_NOOP("&False:"), "", false, FormatText<&TSQLFormats::GetFalseValue>,
     SetFormatText<&TSQLFormats::SetFalseValue>},
    {QT_TR_NOOP("&Date:"), QT_TR_NOOP("Empty: 'yyyy-mm-dd'"), false, FormatText<&TSQLFormats::GetDate>,
     SetFormatText<&TSQLFormats::SetDate>},
    {QT_TR_NOOP("Ti&me:"), QT_TR_NOOP("Empty: 'hh:nn:ss'"), false, FormatText<&TSQLFormats::GetTime>,
     SetFormatText<&TSQLFormats::SetTime>},
    {QT_TR_NOOP("D&ate and time:"), QT_TR_NOOP("Empty: 'yyyy-mm-dd hh:nn:ss'"), false,
     FormatText<&TSQLFormats::GetDateTime>, SetFormatText<&TSQLFormats::SetDateTime>},
    {QT_TR_NOOP("&Wildcard of LIKE:"), "", true, FormatCharacter<&TSQLFormats::GetWildcardChar>,
     SetFormatCharacter<&TSQLFormats::SetWildcardChar>},
    {QT_TR_NOOP("F&unction for lower case:"), "", false, FormatText<&TSQLFormats::GetLowerFunc>,
     SetFormatText<&TSQLFormats::SetLowerFunc>},
    {QT_TR_NOOP("Function for li&sts:"), QT_TR_NOOP("@1 stands for what is listed"), false,
     FormatText<&TSQLFormats::GetListFunction>, SetFormatText<&TSQLFormats::SetListFunction>},
    {QT_TR_NOOP("Default &database:"), QT_TR_NOOP("Its tables are written without it"), false,
     OptionText<&TDMOptions::GetDefaultDatabase>, SetOptionText<&TDMOptions::SetDefaultDatabase>},
    {QT_TR_NOOP("Default o&wner:"), "", false, OptionText<&TDMOptions::GetDefaultDBOwner>,
     SetOptionText<&TDMOptions::SetDefaultDBOwner>},
};

const T_dlgModelSettings::TFlag T_dlgModelSettings::Flags[] = {
    {QT_TR_NOOP("Outer joins are written with OUTE&R"), FormatFlag<&TSQLFormats::GetUseOuterKeyword>,
     SetFormatFlag<&TSQLFormats::SetUseOuterKeyword>},
    {QT_TR_NOOP("AS stands before the alias of a ta&ble"), FormatFlag<&TSQLFormats::GetUseAsInFrom>,
     SetFormatFlag<&TSQLFormats::SetUseAsInFrom>},
    {QT_TR_NOOP("Tables of &several databases"), OptionFlag<&TDMOptions::GetMultiDB>,
     SetOptionFlag<&TDMOptions::SetMultiDB>},
    {QT_TR_NOOP("The connection is stored with the &model"), OptionFlag<&TDMOptions::GetStoreDBInfo>,
     SetOptionFlag<&TDMOptions::SetStoreDBInfo>},
};

T_dlgModelSettings::T_dlgModelSettings(const TJCustomDBStructure& model, QWidget* parent)
    : QDialog(parent), FSample(new QPlainTextEdit(this)) {
  setWindowTitle(tr("Settings of the Model"));
  auto* tabs = new QTabWidget(this);
  tabs->addTab(Scrolled(MakeFormats(), tabs), tr("S&QL"));
  tabs->addTab(Scrolled(MakeModel(model), tabs), tr("&Model"));
  tabs->addTab(MakeOperators(), tr("D&efault operators"));
  FSample->setReadOnly(true);
  MakeCodeText(*FSample);
  FSample->setAccessibleName(tr("Example of a statement"));
  FSample->setMinimumSize(44 * FSample->fontMetrics().averageCharWidth(), 8 * FSample->fontMetrics().lineSpacing());
  auto* sampleLabel = new QLabel(tr("A statement is written so:"), this);
  sampleLabel->setBuddy(FSample);
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
  connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  auto* sample = new QVBoxLayout;
  sample->addWidget(sampleLabel);
  sample->addWidget(FSample, 1);
  auto* columns = new QHBoxLayout;
  columns->addWidget(tabs, 3);
  columns->addLayout(sample, 2);
  auto* layout = new QVBoxLayout(this);
  layout->addLayout(columns, 1);
  layout->addWidget(buttons);
  UseCheckStyle(*this);

  const TModelSettings settings = SettingsOf(model);
  FShowing = true;
  ShowFormats(settings.Formats, settings.Options);
  FMainTable->setCurrentIndex(std::max(0, FMainTable->findData(ToQString(settings.MainTable))));
  FRootFirst->setChecked(settings.RootFieldsFirst);
  for (std::size_t i = 0; i < FGroups.size(); ++i) {
    FGroups[i]->setChecked(settings.ExOperators.Contains(static_cast<TExOperator>(i)));
  }
  for (int row = 0; row < FCaptions->rowCount(); ++row) {
    const std::string name = FromQString(FCaptions->item(row, 0)->text());
    FCaptions->item(row, 1)->setText(ToQString(settings.DefOperators.Value(name)));
  }
  FShowing = false;
  Changed();
  // A main table that is none is what there is to mend.
  if (FMainTable->currentIndex() > 0 && model.TableByName(tnAlias, settings.MainTable) == nullptr) {
    tabs->setCurrentIndex(1);
    FMainTable->setFocus();
  }
  const QSize wanted =
      sizeHint().expandedTo(QSize(140 * fontMetrics().averageCharWidth(), 34 * fontMetrics().height()));
  resize(wanted.boundedTo(screen()->availableSize() * 0.9));
}

// Controls

QWidget* T_dlgModelSettings::MakeFormats() {
  auto* page = new QWidget(this);
  auto* form = new QFormLayout;
  form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
  FPreset = new QComboBox(page);
  FPreset->setAccessibleName(tr("Preset"));
  FPreset->addItem(tr("(own settings)"));
  FPreset->addItems(ToQStringList(FormatPresetNames()));
  connect(FPreset, &QComboBox::activated, this, [this](int index) {
    if (index == 0) return Changed();
    TModelSettings settings = GetSettings();
    ApplyFormatPreset(settings.Formats, FromQString(FPreset->itemText(index)));
    ShowFormats(settings.Formats, settings.Options);
    Changed();
  });
  form->addRow(tr("&Preset:"), FPreset);
  const QRegularExpression ascii(QStringLiteral("[!-~]?"));
  for (const TText& text : Texts) {
    auto* line = new QLineEdit(this);
    line->setMinimumWidth(26 * fontMetrics().averageCharWidth());
    line->setPlaceholderText(*text.Hint != '\0' ? tr(text.Hint) : QString());
    line->setToolTip(line->placeholderText());
    line->setAccessibleName(tr(text.Label).remove(u'&').remove(u':'));
    if (text.IsCharacter) line->setValidator(new QRegularExpressionValidator(ascii, line));
    connect(line, &QLineEdit::textChanged, this, &T_dlgModelSettings::Changed);
    if (FLines.size() < FirstOptionText) form->addRow(tr(text.Label), line);
    FLines.push_back(line);
  }
  for (const TFlag& flag : Flags) {
    auto* check = new QCheckBox(tr(flag.Label), this);
    connect(check, &QCheckBox::clicked, this, &T_dlgModelSettings::Changed);
    if (FChecks.size() < FirstOptionFlag) form->addRow(check);
    FChecks.push_back(check);
  }
  auto* layout = new QVBoxLayout(page);
  layout->addLayout(form);
  layout->addStretch();
  return page;
}

QWidget* T_dlgModelSettings::MakeModel(const TJCustomDBStructure& model) {
  auto* page = new QWidget(this);
  auto* form = new QFormLayout;
  form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
  FMainTable = new QComboBox(page);
  FMainTable->addItem(tr("(none)"), QString());
  for (const TDSTable& table : model.Tables()) {
    const QString alias = ToQString(table.GetTableAlias());
    if (!alias.isEmpty()) FMainTable->addItem(alias, alias);
  }
  // One that the model lacks is kept.
  const QString main = ToQString(model.GetDefaultMainTable());
  if (FMainTable->findData(main) < 0) FMainTable->addItem(main, main);
  FMainTable->setToolTip(tr("Queries start from this table"));
  FRootFirst = new QCheckBox(tr("Menus list the &fields outside groups first"), page);
  form->addRow(tr("Default m&ain table:"), FMainTable);
  form->addRow(FRootFirst);
  for (std::size_t i = FirstOptionText; i < FLines.size(); ++i) form->addRow(tr(Texts[i].Label), FLines[i]);
  for (std::size_t i = FirstOptionFlag; i < FChecks.size(); ++i) form->addRow(FChecks[i]);
  auto* layout = new QVBoxLayout(page);
  layout->addLayout(form);
  layout->addWidget(MakeTypes(), 1);
  return page;
}

QWidget* T_dlgModelSettings::MakeTypes() {
  auto* box = new QGroupBox(tr("Types whose values are written in quotes"), this);
  FTypes = new QListWidget(box);
  FTypes->setAccessibleName(box->title());
  for (int type = ftUnknown + 1; type < FieldTypeCount; ++type) {
    auto* item = new QListWidgetItem(ToQString(FldTypeToStr(static_cast<TFieldType>(type))), FTypes);
    item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable);
    item->setCheckState(Qt::Unchecked);
  }
  connect(FTypes, &QListWidget::itemChanged, this, &T_dlgModelSettings::Changed);
  FQuoteBool = new QCheckBox(tr("&Booleans"), box);
  FQuoteDate = new QCheckBox(tr("Dates and &times"), box);
  const auto set = [this](void (TSQLFormats::*setter)(bool), bool on) {
    TSQLFormats formats;
    formats.SetQuotedTypes(TypesShown());
    (formats.*setter)(on);
    ShowTypes(formats.GetQuotedTypes());
    Changed();
  };
  connect(FQuoteBool, &QCheckBox::clicked, this, [set](bool on) { set(&TSQLFormats::SetQuoteBool, on); });
  connect(FQuoteDate, &QCheckBox::clicked, this, [set](bool on) { set(&TSQLFormats::SetQuoteDate, on); });
  auto* checks = new QHBoxLayout;
  checks->addWidget(FQuoteBool);
  checks->addWidget(FQuoteDate);
  checks->addStretch();
  auto* layout = new QVBoxLayout(box);
  layout->addLayout(checks);
  layout->addWidget(FTypes);
  return box;
}

QWidget* T_dlgModelSettings::MakeOperators() {
  auto* page = new QWidget(this);
  auto* groups = new QGroupBox(tr("Groups that the model has"), page);
  groups->setToolTip(tr("Switching a group off deletes its operators"));
  auto* grid = new QGridLayout(groups);
  for (int group = xoInList; group <= xoContains; ++group) {
    FGroups.push_back(new QCheckBox(tr(GroupCaptions[group]), groups));
    grid->addWidget(FGroups.back(), group / 2, group % 2);
  }
  const auto rows = DefaultOperators();
  FCaptions = new QTableWidget(static_cast<int>(rows.size()), 2, page);
  FCaptions->setAccessibleName(tr("Display names of the default operators"));
  FCaptions->setHorizontalHeaderLabels({tr("Operator"), tr("Display name")});
  FCaptions->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
  FCaptions->horizontalHeader()->setDefaultAlignment(Qt::AlignLeading | Qt::AlignVCenter);
  FCaptions->verticalHeader()->hide();
  FCaptions->setTabKeyNavigation(false);
  for (std::size_t i = 0; i < rows.size(); ++i) {
    auto* name = new QTableWidgetItem(ToQString(rows[i].Name));
    name->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable);
    FCaptions->setItem(static_cast<int>(i), 0, name);
    FCaptions->setItem(static_cast<int>(i), 1, new QTableWidgetItem);
  }
  auto* layout = new QVBoxLayout(page);
  layout->addWidget(groups);
  layout->addWidget(FCaptions, 1);
  return page;
}

// The settings

void T_dlgModelSettings::ShowFormats(const TSQLFormats& formats, const TDMOptions& options) {
  FShowing = true;
  for (std::size_t i = 0; i < FLines.size(); ++i) FLines[i]->setText(ToQString(Texts[i].Get(formats, options)));
  for (std::size_t i = 0; i < FChecks.size(); ++i) FChecks[i]->setChecked(Flags[i].Get(formats, options));
  ShowTypes(formats.GetQuotedTypes());
  FShowing = false;
}

void T_dlgModelSettings::ShowTypes(TFieldTypes types) {
  const bool wasShowing = std::exchange(FShowing, true);
  for (int row = 0; row < FTypes->count(); ++row) {
    const bool isQuoted = types.Contains(static_cast<TFieldType>(row + 1));
    FTypes->item(row)->setCheckState(isQuoted ? Qt::Checked : Qt::Unchecked);
  }
  FShowing = wasShowing;
}

TFieldTypes T_dlgModelSettings::TypesShown() const {
  TFieldTypes types;
  for (int row = 0; row < FTypes->count(); ++row) {
    types.Assign(static_cast<TFieldType>(row + 1), FTypes->item(row)->checkState() == Qt::Checked);
  }
  return types;
}

TModelSettings T_dlgModelSettings::GetSettings() const {
  TModelSettings settings;
  for (std::size_t i = 0; i < FLines.size(); ++i) {
    Texts[i].Set(settings.Formats, settings.Options, FromQString(FLines[i]->text()));
  }
  for (std::size_t i = 0; i < FChecks.size(); ++i) {
    Flags[i].Set(settings.Formats, settings.Options, FChecks[i]->isChecked());
  }
  settings.Formats.SetQuotedTypes(TypesShown());
  settings.MainTable = FromQString(FMainTable->currentData().toString());
  settings.RootFieldsFirst = FRootFirst->isChecked();
  for (std::size_t i = 0; i < FGroups.size(); ++i) {
    settings.ExOperators.Assign(static_cast<TExOperator>(i), FGroups[i]->isChecked());
  }
  for (int row = 0; row < FCaptions->rowCount(); ++row) {
    settings.DefOperators.SetValue(FromQString(FCaptions->item(row, 0)->text()),
                                   FromQString(FCaptions->item(row, 1)->text()));
  }
  return settings;
}

void T_dlgModelSettings::Changed() {
  if (FShowing) return;
  const TModelSettings settings = GetSettings();
  const int preset = FPreset->findText(ToQString(PresetOf(settings.Formats)));
  FPreset->setCurrentIndex(std::max(0, preset));
  FQuoteBool->setChecked(settings.Formats.GetQuoteBool());
  FQuoteDate->setChecked(settings.Formats.GetQuoteDate());
  FSample->setPlainText(ToQString(SampleStatement(settings)).remove(u'\r'));
}

bool EditModelSettings(QWidget* parent, TModelEditor& editor) {
  const TModelSettings before = SettingsOf(editor.Model());
  const QPointer<T_dlgModelSettings> dialog = new T_dlgModelSettings(editor.Model(), parent);
  // What the dialog shows of the settings as they are; lines of other operators are not among them.
  const TModelSettings shown = dialog->GetSettings();
  const bool accepted = dialog->exec() == QDialog::Accepted;
  // The parent may have gone with the dialog, and the editor with it.
  if (!dialog) return false;
  TModelSettings chosen = dialog->GetSettings();
  delete dialog;
  if (!accepted || chosen == shown) return false;
  if (chosen.DefOperators == shown.DefOperators) {
    chosen.DefOperators = before.DefOperators;
  } else {
    TStrings merged = before.DefOperators;
    for (std::size_t i = 0; i < chosen.DefOperators.Count(); ++i) {
      merged.SetValue(chosen.DefOperators.NameAt(i), chosen.DefOperators.ValueAt(i));
    }
    chosen.DefOperators = merged;
  }
  return editor.Edit(FromQString(T_dlgModelSettings::tr("Change settings")),
                     [&] { ApplySettings(editor.Model(), chosen); });
}

}  // namespace tolvi
