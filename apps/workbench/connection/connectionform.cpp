#include "apps/workbench/connection/connectionform.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFileDialog>
#include <QFileInfo>
#include <QFormLayout>
#include <QIntValidator>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalBlocker>

#include <tolvi/ui/dialogs/checkstyle.h>
#include <tolvi/ui/qtext.h>

namespace tolvi {
namespace {

constexpr int MaxPort = 65535;

/// What the kinds have in common, and what not.
struct TKindFields {
  TDatabaseKind Kind;
  const char* UsualPort;
  bool HasFile, HasSource, HasServer, HasSchema, HasUser;
};
constexpr TKindFields Kinds[] = {
    {dkSQLite, "", true, false, false, false, false},
    {dkPostgreSQL, "5432", false, false, true, true, true},
    {dkMySQL, "3306", false, false, true, false, true},
    {dkODBC, "", false, true, false, false, true},
};

}  // namespace

TConnectionForm::TConnectionForm(QWidget* parent)
    : QWidget(parent), FLayout(new QFormLayout(this)), FKind(new QComboBox(this)) {
  FLayout->setContentsMargins({});
  FLayout->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
  FKind->setObjectName(QStringLiteral("connection.kind"));
  FKind->addItems({tr("SQLite file"), tr("PostgreSQL"), tr("MariaDB or MySQL"), tr("ODBC")});
  FLayout->addRow(tr("&Kind of database:"), FKind);
  MakeFileRow();
  FSource = AddLine("source", tr("Data &source:"));
  FSource->setPlaceholderText(tr("Name, or Driver={...};Server=..."));
  FHost = AddLine("host", tr("&Host:"));
  FHost->setPlaceholderText(tr("this computer"));
  FPort = AddLine("port", tr("P&ort:"));
  FPort->setValidator(new QIntValidator(1, MaxPort, FPort));
  FDatabase = AddLine("database", tr("&Database:"));
  FSchema = AddLine("schema", tr("S&chema:"));
  FSchema->setPlaceholderText(tr("the usual one"));
  FUser = AddLine("user", tr("&User:"));
  MakePasswordRows();
  connect(FKind, &QComboBox::currentIndexChanged, this, [this] {
    ShowKind();
    Changed();
  });
  UseCheckStyle(*this);
  setFocusProxy(FKind);
  ShowKind();
}

QLineEdit* TConnectionForm::AddLine(const char* name, const QString& caption) {
  auto* line = new QLineEdit(this);
  line->setObjectName(QStringLiteral("connection.") + QLatin1String(name));
  // Files are dropped on the dialog as a whole.
  line->setAcceptDrops(false);
  connect(line, &QLineEdit::textEdited, this, &TConnectionForm::Changed);
  if (!caption.isEmpty()) FLayout->addRow(caption, line);
  return line;
}

void TConnectionForm::MakeFileRow() {
  FFileRow = new QWidget(this);
  FFile = AddLine("file", {});
  auto* browse = new QPushButton(tr("&Browse..."), FFileRow);
  browse->setObjectName(QStringLiteral("connection.browse"));
  browse->setAutoDefault(false);
  connect(browse, &QPushButton::clicked, this, &TConnectionForm::Browse);
  auto* row = new QHBoxLayout(FFileRow);
  row->setContentsMargins({});
  row->addWidget(FFile, 1);
  row->addWidget(browse);
  FLayout->addRow(tr("&File:"), FFileRow);
  static_cast<QLabel*>(FLayout->labelForField(FFileRow))->setBuddy(FFile);
  FFile->setPlaceholderText(tr("Browse for it, or drop it here"));
}

void TConnectionForm::MakePasswordRows() {
  FPassword = AddLine("password", tr("Pass&word:"));
  FPassword->setEchoMode(QLineEdit::Password);
  FRemember = new QCheckBox(tr("&Remember the password in the keychain"), this);
  FRemember->setObjectName(QStringLiteral("connection.remember"));
  connect(FRemember, &QCheckBox::clicked, this, [this] { FRememberChosen = true; });
  FRememberTold = new QLabel(this);
  FRememberTold->setObjectName(QStringLiteral("connection.rememberTold"));
  FRememberTold->setTextFormat(Qt::PlainText);
  FRememberTold->setWordWrap(true);
  FLayout->addRow(FRemember);
  FLayout->addRow(FRememberTold);
}

void TConnectionForm::Browse() {
  const QString file =
      QFileDialog::getOpenFileName(this, tr("Open a database"), FFile->text(),
                                   tr("SQLite databases (*.sqlite *.sqlite3 *.db *.db3);;All files (*)"));
  if (file.isEmpty()) return;
  FFile->setText(file);
  Changed();
}

TDatabaseKind TConnectionForm::Kind() const { return Kinds[FKind->currentIndex()].Kind; }

void TConnectionForm::ShowKind() {
  const TKindFields& kind = Kinds[FKind->currentIndex()];
  FLayout->setRowVisible(FFileRow, kind.HasFile);
  FLayout->setRowVisible(FSource, kind.HasSource);
  for (QWidget* field : {FHost, FPort, FDatabase}) FLayout->setRowVisible(field, kind.HasServer);
  FLayout->setRowVisible(FSchema, kind.HasSchema);
  for (QWidget* field : {FUser, FPassword}) FLayout->setRowVisible(field, kind.HasUser);
  FLayout->setRowVisible(FRemember, kind.HasUser);
  FLayout->setRowVisible(FRememberTold, kind.HasUser && !FRememberTold->text().isEmpty());
  FPort->setPlaceholderText(QLatin1String(kind.UsualPort));
}

void TConnectionForm::Changed() {
  if (FShowing) return;
  if (const auto handler = OnChange) handler();
}

namespace {

/// A user and a password among the attributes of a data source are what the other fields are for.
void TakeAttributes(TConnectionUrl& url) {
  try {
    const TConnectionUrl read = ParseConnectionUrl("odbc:" + url.Database);
    url.Database = read.Database;
    if (!read.User.empty()) url.User = read.User;
    if (!read.Password.empty()) url.Password = read.Password;
  } catch (const EConnectError&) {
    // Half typed: `Fault` says what is wrong.
  }
}

}  // namespace

TConnectionUrl TConnectionForm::GetUrl() const {
  const TKindFields& kind = Kinds[FKind->currentIndex()];
  const auto text = [](const QLineEdit* line) { return FromQString(line->text().trimmed()); };
  TConnectionUrl url{.Kind = kind.Kind, .Database = text(FDatabase)};
  if (kind.HasFile) url.Database = text(FFile);
  if (kind.HasSource) url.Database = text(FSource);
  if (kind.HasServer) {
    url.Host = text(FHost);
    url.Port = FPort->text().toInt();
  }
  if (kind.HasSchema) url.Schema = text(FSchema);
  if (kind.HasUser) {
    url.User = text(FUser);
    url.Password = TypedPassword().value_or(FKnownPassword);
  }
  if (kind.HasSource) TakeAttributes(url);
  return url;
}

void TConnectionForm::SetUrl(const TConnectionUrl& url) {
  FShowing = true;
  for (int i = 0; i < FKind->count(); ++i) {
    if (Kinds[i].Kind == url.Kind) FKind->setCurrentIndex(i);
  }
  ShowKind();
  const TKindFields& kind = Kinds[FKind->currentIndex()];
  const auto show = [](QLineEdit* line, const QString& text) {
    // The cursor stays where the user types.
    if (line->text().trimmed() != text) line->setText(text);
  };
  show(kind.HasFile ? FFile : kind.HasSource ? FSource : FDatabase, ToQString(url.Database));
  show(FHost, ToQString(url.Host));
  show(FPort, url.Port == 0 ? QString() : QString::number(url.Port));
  show(FSchema, ToQString(url.Schema));
  show(FUser, ToQString(url.User));
  if (!url.Password.empty()) FPassword->setText(ToQString(url.Password));
  FShowing = false;
}

void TConnectionForm::ForgetPassword() {
  FPassword->clear();
  FRememberChosen = false;
}

QString TConnectionForm::Fault() const {
  const TConnectionUrl url = GetUrl();
  switch (url.Kind) {
    case dkSQLite:
      if (url.Database.empty()) return tr("Choose a file.");
      if (url.Database == ":memory:" || QFileInfo(ToQString(url.Database)).isFile()) return {};
      return QFileInfo::exists(ToQString(url.Database)) ? tr("This is no file.") : tr("There is no such file.");
    case dkODBC:
      return url.Database.empty() ? tr("Name the data source.") : QString();
    case dkPostgreSQL:
    case dkMySQL:
      break;
  }
  if (url.Database.empty()) return tr("Name the database.");
  return FPort->text().isEmpty() || FPort->hasAcceptableInput() ? QString()
                                                                : tr("The port is a number from 1 to 65535.");
}

void TConnectionForm::GoToFault() {
  const TKindFields& kind = Kinds[FKind->currentIndex()];
  QLineEdit* line = kind.HasFile ? FFile : kind.HasSource ? FSource : FDatabase;
  if (kind.HasServer && !line->text().trimmed().isEmpty()) line = FPort;
  line->setFocus(Qt::OtherFocusReason);
}

std::optional<std::string> TConnectionForm::TypedPassword() const {
  if (Kinds[FKind->currentIndex()].HasSource) {
    TConnectionUrl url{.Kind = dkODBC, .Database = FromQString(FSource->text().trimmed())};
    TakeAttributes(url);
    if (!url.Password.empty()) return url.Password;
  }
  if (FPassword->text().isEmpty() || !Kinds[FKind->currentIndex()].HasUser) return std::nullopt;
  return FromQString(FPassword->text());
}

void TConnectionForm::SetKnownPassword(const std::optional<std::string>& password, bool isInKeychain) {
  if (!FRememberChosen) FRemember->setChecked(isInKeychain);
  FKnownPassword = password.value_or("");
  FPassword->setPlaceholderText(password ? tr("known") : QString());
}

bool TConnectionForm::GetRemember() const { return FRemember->isChecked() && FRemember->isEnabled(); }

void TConnectionForm::ShowKeychain(bool isThere, const QString& told) {
  FRemember->setEnabled(isThere);
  FRemember->setToolTip(told);
  FRemember->setAccessibleDescription(told);
  FRememberTold->setText(told);
  KeepRoom();
}

QSize TConnectionForm::sizeHint() const { return QWidget::sizeHint().expandedTo(FRoom); }

void TConnectionForm::KeepRoom() {
  const int chosen = FKind->currentIndex();
  const QSignalBlocker quiet(FKind);
  FRoom = {};
  for (int i = 0; i < FKind->count(); ++i) {
    FKind->setCurrentIndex(i);
    ShowKind();
    FLayout->activate();
    FRoom = FRoom.expandedTo(QSize(0, FLayout->sizeHint().height()));
  }
  FKind->setCurrentIndex(chosen);
  ShowKind();
  updateGeometry();
}

}  // namespace tolvi
