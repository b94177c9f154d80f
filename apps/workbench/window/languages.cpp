#include "apps/workbench/window/languages.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>
#include <memory>

namespace tolvi {
namespace {

const QString English = QStringLiteral("en");

}  // namespace

std::vector<TLanguage> Languages() {
  std::vector<TLanguage> languages{{English, QStringLiteral("English")}};
  for (const QString& file : QDir(QStringLiteral(":/titles")).entryList()) {
    const QString code = file.section(u'.', 0, 0);
    languages.push_back({code, QLocale(code).nativeLanguageName()});
  }
  return languages;
}

QString UseLanguage(const QString& code) {
  static std::vector<std::unique_ptr<QTranslator>> translators;
  translators.clear();  // a translator that is destroyed is no longer asked
  const QString wanted = code.isEmpty() ? QLocale::system().name().section(u'_', 0, 0) : code;
  QString used = English;
  for (const TLanguage& language : Languages()) {
    if (language.Code == wanted) used = wanted;
  }
  const auto add = [](const QString& name, const QString& folder) {
    auto translator = std::make_unique<QTranslator>();
    if (!translator->load(name, folder)) return;
    QCoreApplication::installTranslator(translator.get());
    translators.push_back(std::move(translator));
  };
  // The toolkit's own texts, where they are installed.
  add(QStringLiteral("qtbase_") + used, QLibraryInfo::path(QLibraryInfo::TranslationsPath));
  for (const auto& part : {QStringLiteral("widgets_"), QStringLiteral("workbench_")}) {
    add(part + used, QStringLiteral(":/i18n"));
  }
  QGuiApplication::setLayoutDirection(QLocale(used).textDirection());
  return used;
}

TStrings PanelTitles(const QString& code) {
  TStrings lines;
  QFile file(QStringLiteral(":/titles/%1.titles").arg(code));
  if (file.open(QIODevice::ReadOnly)) lines.SetText(file.readAll().toStdString());
  return lines;
}

}  // namespace tolvi
