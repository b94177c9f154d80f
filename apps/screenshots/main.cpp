// The pictures of the documentation: plays the session of an end user and keeps what is seen along the way.
//   tolvi_screenshots FOLDER         the pictures of docs/
//   tolvi_screenshots --all FOLDER   every station: small and large fonts, light and dark, mirrored in Arabic
//   tolvi_screenshots --commands     prints the table of commands of docs/ui.md
#include <QApplication>
#include <QDir>
#include <QHash>
#include <algorithm>
#include <cstdio>
#include <functional>
#include <set>

#include "apps/screenshots/session.h"
#include <tolvi/foundation/errors.h>
#include <tolvi/panel/rfldeditor.h>
#include <tolvi/ui/dialogs/rfldedlg.h>
#include <tolvi/ui/qtext.h>

using namespace tolvi;

namespace {

/// How the window looks while a session is played.
struct TLook {
  std::string Name;
  int FontSize = 10;
  bool IsDark = false, IsArabic = false;
};

/// The looks and stations that the documentation shows; the rest is left out.
const std::set<std::string> documented{"keys-start",          "keys-field",     "keys-mistake",   "keys-linkword",
                                       "keys-sorting",        "mouse-menu",     "mouse-operator", "mouse-rowmenu",
                                       "mouse-drag",          "mouse-finished", "mouse-editor",   "dark-keys-finished",
                                       "arabic-keys-finished"};

QPalette DarkPalette() {
  QPalette palette;
  const std::pair<QPalette::ColorRole, QColor> colors[] = {{QPalette::Window, {45, 47, 51}},
                                                           {QPalette::WindowText, {230, 230, 230}},
                                                           {QPalette::Base, {30, 31, 34}},
                                                           {QPalette::AlternateBase, {45, 47, 51}},
                                                           {QPalette::Text, {230, 230, 230}},
                                                           {QPalette::PlaceholderText, {150, 150, 150}},
                                                           {QPalette::Button, {60, 63, 68}},
                                                           {QPalette::ButtonText, {230, 230, 230}},
                                                           {QPalette::Highlight, {52, 110, 190}},
                                                           {QPalette::HighlightedText, Qt::white},
                                                           {QPalette::Link, {110, 170, 255}},
                                                           {QPalette::ToolTipBase, {60, 63, 68}},
                                                           {QPalette::ToolTipText, {230, 230, 230}},
                                                           {QPalette::Light, {80, 83, 88}},
                                                           {QPalette::Mid, {50, 52, 56}},
                                                           {QPalette::Dark, {25, 26, 28}}};
  for (const auto& [role, color] : colors) palette.setColor(role, color);
  for (const QPalette::ColorRole role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
    palette.setColor(QPalette::Disabled, role, QColor(130, 130, 130));
  }
  return palette;
}

void Apply(const TLook& look) {
  static const QPalette light = QApplication::palette();
  QApplication::setPalette(look.IsDark ? DarkPalette() : light);
  QApplication::setFont(QFont(QStringLiteral("DejaVu Sans"), look.FontSize));
  QApplication::setLayoutDirection(look.IsArabic ? Qt::RightToLeft : Qt::LeftToRight);
}

/// Few colours make up nearly all of a picture; the shades of letters that are left over get the nearest of them.
QImage Reduced(const QImage& picture) {
  QHash<QRgb, int> counts;
  for (int y = 0; y < picture.height(); ++y) {
    const auto* line = reinterpret_cast<const QRgb*>(picture.constScanLine(y));
    for (int x = 0; x < picture.width(); ++x) ++counts[line[x]];
  }
  QList<QRgb> colors = counts.keys();
  std::sort(colors.begin(), colors.end(),
            [&](QRgb a, QRgb b) { return std::pair(counts[b], a) < std::pair(counts[a], b); });
  return picture.convertToFormat(QImage::Format_Indexed8, colors.mid(0, 256), Qt::ThresholdDither | Qt::AvoidDither);
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
  if (look.IsArabic) {
    texts = {QStringLiteral("الشروط"), QStringLiteral("الأعمدة"), QStringLiteral("جملة SQL"), {}};
    texts.Titles.LoadFromFile(TOLVI_SOURCE_DIR "/translations/ar.titles");
  }
  TJDBStructure model;
  model.LoadFromFile(TOLVI_SOURCE_DIR "/samples/shop/shop.model");
  THostWindow window(model, texts);
  window.Open();
  const std::string prefix = look.Name + (byKeys ? "keys-" : "mouse-");
  const auto save = [&](const std::string& station, const std::function<QImage()>& picture) {
    const std::string name = prefix + station;
    if (!all && documented.count(name) == 0) return;
    const QString file = QDir(folder).filePath(ToQString(name) + QStringLiteral(".png"));
    if (!Reduced(picture()).save(file, "PNG", 0)) throw EException("cannot write " + FromQString(file));
  };
  const auto keep = [&](const std::string& station) { save(station, [&window] { return window.GetPicture(); }); };
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

int PlayAll(const QString& folder, bool all) {
  if (!QDir().mkpath(folder)) throw EException("cannot make the folder " + FromQString(folder));
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
  const bool all = arguments.size() == 2 && arguments.first() == QStringLiteral("--all");
  if (!all && arguments.size() != 1) throw EException("usage: tolvi_screenshots [--all] FOLDER | --commands");
  return PlayAll(arguments.last(), all);
} catch (const std::exception& error) {
  std::fprintf(stderr, "tolvi_screenshots: %s\n", error.what());
  return 1;
}
