// The pictures of the documentation: plays the sessions of an end user and of a developer and keeps what is seen along
// the way.
//   tolvi_screenshots FOLDER             the pictures of docs/
//   tolvi_screenshots --all FOLDER       every station: small and large fonts, light and dark, mirrored
//   tolvi_screenshots --designer FOLDER  the same, of the developer's session only
//   tolvi_screenshots --commands         prints the table of commands of docs/ui.md
#include <QApplication>
#include <QDir>
#include <QTemporaryDir>
#include <cstdio>
#include <functional>
#include <set>

#include "apps/palette/reduced.h"
#include "apps/screenshots/designsession.h"
#include "apps/screenshots/looks.h"
#include "apps/screenshots/session.h"
#include <tolvi/foundation/errors.h>
#include <tolvi/panel/rfldeditor.h>
#include <tolvi/ui/dialogs/rfldedlg.h>
#include <tolvi/ui/qtext.h>

using namespace tolvi;

namespace {

/// The looks and stations that the documentation shows; the rest is left out.
const std::set<std::string> documented{
    "keys-start",           "keys-field",           "keys-mistake",          "keys-linkword",
    "keys-sorting",         "mouse-menu",           "mouse-operator",        "mouse-rowmenu",
    "mouse-drag",           "mouse-finished",       "mouse-editor",          "dark-keys-finished",
    "arabic-keys-finished", "designer-fill-tables", "designer-fill-fields",  "designer-tables",
    "designer-link",        "designer-fields",      "designer-value-editor", "designer-expression",
    "designer-operators",   "designer-conditions",  "designer-diagram",      "designer-try",
    "dark-designer-diagram"};

/// Keeps the picture of a station in the folder, if it is wanted.
void Save(const std::string& name, const QString& folder, bool all, const std::function<QImage()>& picture) {
  if (!all && documented.count(name) == 0) return;
  const QString file = QDir(folder).filePath(ToQString(name) + QStringLiteral(".png"));
  if (!Reduced(picture()).save(file, "PNG", 0)) throw EException("cannot write " + FromQString(file));
}

/// The dialog on the columns of the window, with one more: a formula over two fields.
QImage EditorPicture(THostWindow& window, const THostTexts& texts) {
  TTitles titles;
  titles.Assign(texts.Titles);
  T_dlgRFieldEdit dialog(*window.GetColumns().GetResultFields(), titles);
  TRFieldEditor& editor = dialog.Editor();
  editor.New();
  editor.SetExpression("sum({OrderLines.Quantity} * {OrderLines.UnitPrice})");
  dialog.show();
  QCoreApplication::processEvents();
  return dialog.grab().toImage().convertToFormat(QImage::Format_RGB32);
}

/// Plays the session, keeps the pictures that are wanted, and returns the statement.
std::string Play(const TLook& look, bool byKeys, const QString& folder, bool all) {
  Apply(look);
  THostTexts texts;
  if (look.IsMirrored) {
    texts = {QStringLiteral("الشروط"), QStringLiteral("الأعمدة"), QStringLiteral("جملة SQL"), {}};
    texts.Titles.LoadFromFile(TOLVI_SOURCE_DIR "/translations/ar.titles");
  }
  TJDBStructure model;
  model.LoadFromFile(TOLVI_SOURCE_DIR "/samples/shop/shop.model");
  THostWindow window(model, texts);
  window.Open();
  const std::string prefix = look.Name + (byKeys ? "keys-" : "mouse-");
  const auto save = [&](const std::string& station, const std::function<QImage()>& picture) {
    Save(prefix + station, folder, all, picture);
  };
  const auto keep = [&](const std::string& station) { save(station, [&window] { return PictureOf(window); }); };
  byKeys ? PlayByKeys(window, keep) : PlayByMouse(window, keep);
  if (!byKeys) save("editor", [&] { return EditorPicture(window, texts); });
  return window.GetStatement();
}

std::vector<TLook> Looks(bool all) {
  if (!all) return {{"", 10}, {"dark-", 10, true}, {"arabic-", 10, false, true}};
  std::vector<TLook> looks;
  for (const int size : {8, 10, 14, 20}) {
    for (const bool isDark : {false, true}) {
      for (const bool isArabic : {false, true}) {
        const std::string name = std::to_string(size) + (isDark ? "-dark" : "") + (isArabic ? "-arabic-" : "-");
        looks.push_back({name, size, isDark, isArabic});
      }
    }
  }
  return looks;
}

void PlayDesigns(const QString& folder, bool all) {
  std::vector<TLook> looks{{""}, {"dark-", 10, true}};
  if (all) looks.insert(looks.end(), {{"mirrored-", 10, false, true}, {"8-dark-", 8, true}, {"14-", 14}});
  for (const TLook& look : looks) {
    Apply(look);
    const QTemporaryDir files;
    TDesignHost host(TOLVI_SHOP_DATABASE);
    PlayDesign(host, files.filePath(QStringLiteral("shop.model")), [&](const std::string& station, QWidget& window) {
      Save(look.Name + "designer-" + station, folder, all, [&window] { return PictureOf(window); });
    });
  }
}

int PlayQueries(const QString& folder, bool all) {
  std::string expected;
  for (const TLook& look : Looks(all)) {
    for (const bool byKeys : {true, false}) {
      const std::string statement = Play(look, byKeys, folder, all);
      if (expected.empty()) expected = statement;
      if (statement == expected) continue;
      std::fprintf(stderr, "%s%s ends in\n%s\ninstead of\n%s\n", look.Name.c_str(), byKeys ? "keys" : "mouse",
                   statement.c_str(), expected.c_str());
      return 1;
    }
  }
  return 0;
}

/// The offscreen platform says for every window what it cannot do.
void TellUnlessUsual(QtMsgType, const QMessageLogContext&, const QString& text) {
  if (!text.startsWith(QStringLiteral("This plugin does not support"))) std::fprintf(stderr, "%s\n", qPrintable(text));
}

}  // namespace

int main(int argc, char** argv) try {
  // Its own screen would be too small for the menus of large fonts.
  qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" TOLVI_SOURCE_DIR "/apps/screenshots/screen.json");
  qInstallMessageHandler(TellUnlessUsual);
  QApplication application(argc, argv);
  application.setStyle(QStringLiteral("Fusion"));
  application.setCursorFlashTime(0);  // the text cursor is in every picture
  application.setEffectEnabled(Qt::UI_AnimateMenu, false);
  const QStringList arguments = application.arguments().mid(1);
  if (arguments == QStringList{QStringLiteral("--commands")}) {
    std::fputs(CommandTable().c_str(), stdout);
    return 0;
  }
  const bool onlyDesigner = arguments.size() == 2 && arguments.first() == QStringLiteral("--designer");
  const bool all = onlyDesigner || (arguments.size() == 2 && arguments.first() == QStringLiteral("--all"));
  if (!all && arguments.size() != 1)
    throw EException("usage: tolvi_screenshots [--all | --designer] FOLDER | --commands");
  const QString folder = arguments.last();
  if (!QDir().mkpath(folder)) throw EException("cannot make the folder " + FromQString(folder));
  PlayDesigns(folder, all);
  return onlyDesigner ? 0 : PlayQueries(folder, all);
} catch (const std::exception& error) {
  std::fprintf(stderr, "tolvi_screenshots: %s\n", error.what());
  return 1;
}
