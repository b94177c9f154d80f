#include "apps/workbench/script/player.h"

#include <QAbstractItemView>
#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QElapsedTimer>
#include <QFile>
#include <QPainter>
#include <QScopedValueRollback>
#include <QTest>
#include <QTimer>
#include <QWindow>
#include <algorithm>
#include <csignal>
#include <cstdio>
#include <functional>

#include "apps/palette/reduced.h"
#include "apps/workbench/results/resultpane.h"
#include "apps/workbench/script/widgettext.h"
#include "apps/workbench/window/mainwindow.h"
#include "apps/workbench/window/program.h"
#include <tolvi/foundation/errors.h>
#include <tolvi/foundation/files.h>
#include <tolvi/ui/qtext.h>

namespace tolvi {
namespace {

constexpr int Patience = 10'000, Step = 10;

class EScriptError : public EException {
 public:
  explicit EScriptError(const QString& words) : EException(FromQString(words)) {}
};

QWidget* ActiveWindow(TProgram& program) {
  if (QWidget* popup = QApplication::activePopupWidget()) return popup;
  if (QWidget* modal = QApplication::activeModalWidget()) return modal;
  QWidget* active = QApplication::activeWindow();
  return active != nullptr ? active : &program.Window();
}

/// The window that keys go to. Without a window manager nobody activates windows.
QWindow* KeyWindow(TProgram& program) {
  QWidget* widget = ActiveWindow(program);
  if (QApplication::activeWindow() == nullptr) {
    widget->activateWindow();
    QApplication::setActiveWindow(widget->window());
  }
  return widget->window()->windowHandle();
}

/// Of several, the one in the active window.
QWidget* Find(TProgram& program, const QString& name) {
  QWidget* found = nullptr;
  for (QWidget* widget : QApplication::allWidgets()) {
    if (widget->objectName() != name || !widget->isVisible()) continue;
    if (found == nullptr || widget->window() == ActiveWindow(program)) found = widget;
  }
  return found;
}

QWidget& Need(TProgram& program, const QString& name) {
  QWidget* widget = Find(program, name);
  if (widget == nullptr) throw EScriptError(QStringLiteral("there is no %1 to be seen").arg(name));
  return *widget;
}

/// All windows that can be seen, as they lie above each other.
QImage Picture(TProgram& program) {
  QCoreApplication::processEvents();
  QWidget& main = program.Window();
  const double ratio = main.devicePixelRatioF();
  QImage picture(main.size() * ratio, QImage::Format_RGB32);
  picture.setDevicePixelRatio(ratio);
  picture.fill(main.palette().color(QPalette::Window));
  QPainter painter(&picture);
  painter.drawPixmap(QPoint(), main.grab());
  for (QWidget* other : QApplication::topLevelWidgets()) {
    if (other == &main || !other->isVisible() || other->windowType() == Qt::Desktop) continue;
    const QRect place(main.mapFromGlobal(other->mapToGlobal(QPoint())), other->size());
    painter.drawPixmap(place.topLeft(), other->grab());
    painter.setPen(main.palette().color(QPalette::Mid));
    painter.drawRect(place.adjusted(-1, -1, 0, 0));
  }
  return picture;
}

void SavePicture(TProgram& program, const QString& file) {
  if (!Reduced(Picture(program)).save(file, "PNG", 0)) throw EScriptError(QStringLiteral("cannot write %1").arg(file));
}

class TPlayer final : public QObject {
 public:
  TPlayer(TProgram& program, QString script, QString picture)
      : FProgram(program), FScript(std::move(script)), FPicture(std::move(picture)) {
    if (!FScript.isEmpty()) FLines = ToQString(ReadFile(ToPath(FScript))).split(u'\n');
    Continue(0);
  }

  /// Once the program has ended, be it by its script or by a command of it: the picture is due all the same, and lines
  /// that are left have not been played. The exit status.
  int Finish() {
    SkipNotes();
    if (FNext < FLines.size()) Tell(FNext, QStringLiteral("the program ended before this line"));
    if (!FHasPicture) MakePicture();
    return FResult;
  }

 private:
  using TRun = void (TPlayer::*)(const QString& rest);
  struct TCommand {
    const char* Name;
    TRun Run;
  };
  // Null when there is none of that name.
  static const TCommand* CommandOf(const QString& name);

  // The next line is played from the event loop, so that a line may open a dialog that does not return.
  void Continue(int milliseconds) {
    QTimer::singleShot(milliseconds, this, [this] { PlayLine(); });
  }

  void SkipNotes() {
    while (FNext < FLines.size() && (FLines[FNext].trimmed().isEmpty() || FLines[FNext].startsWith(u'#'))) ++FNext;
  }

  void PlayLine() {
    SkipNotes();
    // Keys let events come, this one, too.
    if (FIsTyping) return Continue(Step);
    if (FNext >= FLines.size()) return End();
    if (FWaiting) return Await();
    const QString line = FLines[FNext].trimmed();
    const QString name = line.section(u' ', 0, 0), rest = line.section(u' ', 1);
    const int number = FNext;
    const TCommand* command = CommandOf(name);
    if (command == nullptr) return Fail(number, QStringLiteral("there is no command %1").arg(name));
    // What waits goes to the next line by itself.
    const bool waits = name.startsWith(QStringLiteral("expect")) || name == QStringLiteral("pause");
    if (!waits) {
      ++FNext;
      Continue(Step);
    }
    try {
      (this->*command->Run)(rest);
    } catch (const std::exception& error) {
      Fail(number, QString::fromUtf8(error.what()));
    }
    if (waits) Continue(0);
  }

  void Wait(const std::function<bool()>& isThere, const std::function<QString()>& found) {
    FWaiting = isThere;
    FFound = found;
    FWaited.start();
  }

  void Await() {
    if (FWaiting()) {
      FWaiting = nullptr;
      ++FNext;
    } else if (FWaited.hasExpired(Patience)) {
      return Fail(FNext, FFound());
    }
    Continue(Step);
  }

  void Tell(qsizetype line, const QString& words) {
    FResult = 1;
    std::fprintf(stderr, "%s:%d: %s\n", qPrintable(FScript), static_cast<int>(line) + 1, qPrintable(words));
  }

  void Fail(qsizetype line, const QString& words) {
    if (FResult != 0) return;
    Tell(line, words);
    if (!FPicture.isEmpty()) Picture(FProgram).save(FPicture, "PNG");
    // Without closing windows, which would ask.
    std::fflush(nullptr);
    std::_Exit(1);
  }

  void End() {
    if (FScript.isEmpty() && !FPicture.isEmpty()) {
      if (!FWaited.isValid()) FWaited.start();
      const TResultPane& results = FProgram.Window().ResultPane();
      const bool isReady = results.GetRows() && !results.IsRunning();
      if (!isReady && !FWaited.hasExpired(Patience)) return Continue(Step);
    }
    MakePicture();
    QCoreApplication::exit(FResult);
  }

  void MakePicture() {
    FHasPicture = true;
    try {
      if (!FPicture.isEmpty()) SavePicture(FProgram, FPicture);
    } catch (const std::exception& error) {
      Tell(FNext, QString::fromUtf8(error.what()));
    }
  }

  // Commands

  void Key(const QString& rest) {
    const QKeySequence keys(rest.section(u' ', 0, 0));
    if (keys.isEmpty() || keys[0].key() == Qt::Key_unknown)
      throw EScriptError(QStringLiteral("%1 is no key").arg(rest));
    const int count = rest.contains(u' ') ? rest.section(u' ', 1, 1).toInt() : 1;
    for (int i = 0; i < count; ++i) {
      QTest::keyClick(KeyWindow(FProgram), keys[0].key(), keys[0].keyboardModifiers());
      QCoreApplication::processEvents();
    }
  }

  void Type(const QString& rest) {
    const QScopedValueRollback typing(FIsTyping, true);
    for (const QChar letter : rest) {
      QWindow* window = KeyWindow(FProgram);
      const int key = letter.toUpper().unicode();
      QTest::sendKeyEvent(QTest::Click, window, static_cast<Qt::Key>(key), QString(letter),
                          letter.isUpper() ? Qt::ShiftModifier : Qt::NoModifier);
    }
  }

  void Click(const QString& rest) {
    QWidget& widget = Need(FProgram, rest);
    QTest::mouseClick(widget.window()->windowHandle(), Qt::LeftButton, {},
                      widget.mapTo(widget.window(), widget.rect().center()));
  }

  void Choose(const QString& rest) {
    QAction* action = FProgram.Window().findChild<QAction*>(rest);
    if (action == nullptr) throw EScriptError(QStringLiteral("there is no command %1 in the menus").arg(rest));
    if (!action->isEnabled()) throw EScriptError(QStringLiteral("%1 is not possible now").arg(rest));
    action->trigger();
  }

  void Focus(const QString& rest) { Need(FProgram, rest).setFocus(); }

  void Expect(const QString& rest) { ExpectText(rest, true); }
  void ExpectNot(const QString& rest) { ExpectText(rest, false); }
  void ExpectText(const QString& rest, bool isWanted) {
    const QString name = rest.section(u' ', 0, 0), text = rest.section(u' ', 1);
    const auto shown = [this, name] {
      const QWidget* widget = Find(FProgram, name);
      return widget == nullptr ? QString() : TextOf(*widget);
    };
    Wait([shown, text, isWanted] { return shown().contains(text) == isWanted; },
         [shown, name, text, isWanted] {
           return QStringLiteral("%1 %2 \"%3\" but\n%4")
               .arg(name, isWanted ? QStringLiteral("shows not") : QStringLiteral("shows"), text, shown().left(2000));
         });
  }

  void ExpectWindow(const QString& rest) {
    Wait([this, rest] { return Find(FProgram, rest) != nullptr; },
         [rest] { return QStringLiteral("no window %1 is open").arg(rest); });
  }
  void ExpectNoWindow(const QString& rest) {
    Wait([this, rest] { return Find(FProgram, rest) == nullptr; },
         [rest] { return QStringLiteral("the window %1 is open").arg(rest); });
  }
  void ExpectTitle(const QString& rest) {
    const auto title = [this] {
      const TMainWindow& window = FProgram.Window();
      return window.windowTitle().replace(QStringLiteral("[*]"),
                                          window.isWindowModified() ? QStringLiteral("*") : QString());
    };
    Wait([title, rest] { return title() == rest; },
         [title] { return QStringLiteral("the title is \"%1\"").arg(title()); });
  }

  void Clipboard(const QString& rest) {
    QApplication::clipboard()->setText(QString(rest).replace(QStringLiteral("\\n"), QStringLiteral("\n")));
  }
  void SaveClipboard(const QString& rest) {
    WriteFileAtomically(ToPath(rest), FromQString(QApplication::clipboard()->text()));
  }

  void Resize(const QString& rest) {
    FProgram.Window().resize(rest.section(u' ', 0, 0).toInt(), rest.section(u' ', 1, 1).toInt());
  }
  void Theme(const QString& rest) {
    FProgram.Settings().Theme = rest == QStringLiteral("dark") ? thDark : thLight;
    FProgram.Window().Requests.UseTheme();
  }
  void SavePictureTo(const QString& rest) { SavePicture(FProgram, rest); }

  void Pause(const QString& rest) {
    const int milliseconds = rest.toInt();
    if (milliseconds > Patience) throw EScriptError(QStringLiteral("a pause lasts %1 ms at most").arg(Patience));
    Wait([this, milliseconds] { return FWaited.hasExpired(milliseconds); }, [] { return QString(); });
  }
  void Kill(const QString&) { std::raise(SIGKILL); }
  void Quit(const QString&) { FProgram.Window().close(); }

  TProgram& FProgram;
  const QString FScript, FPicture;
  QStringList FLines;
  int FNext = 0, FResult = 0;
  bool FIsTyping = false, FHasPicture = false;
  std::function<bool()> FWaiting;
  std::function<QString()> FFound;
  QElapsedTimer FWaited;
};

const TPlayer::TCommand* TPlayer::CommandOf(const QString& name) {
  static constexpr TCommand commands[] = {{"key", &TPlayer::Key},
                                          {"type", &TPlayer::Type},
                                          {"click", &TPlayer::Click},
                                          {"choose", &TPlayer::Choose},
                                          {"focus", &TPlayer::Focus},
                                          {"expect", &TPlayer::Expect},
                                          {"expect-not", &TPlayer::ExpectNot},
                                          {"expect-window", &TPlayer::ExpectWindow},
                                          {"expect-no-window", &TPlayer::ExpectNoWindow},
                                          {"expect-title", &TPlayer::ExpectTitle},
                                          {"clipboard", &TPlayer::Clipboard},
                                          {"save-clipboard", &TPlayer::SaveClipboard},
                                          {"resize", &TPlayer::Resize},
                                          {"theme", &TPlayer::Theme},
                                          {"picture", &TPlayer::SavePictureTo},
                                          {"pause", &TPlayer::Pause},
                                          {"kill", &TPlayer::Kill},
                                          {"quit", &TPlayer::Quit}};
  const auto* found = std::find_if(std::begin(commands), std::end(commands),
                                   [&name](const TCommand& known) { return QLatin1String(known.Name) == name; });
  return found == std::end(commands) ? nullptr : found;
}

}  // namespace

int PlayScript(TProgram& program, const QString& script, const QString& picture) {
  QApplication::setCursorFlashTime(0);
  QApplication::setEffectEnabled(Qt::UI_AnimateMenu, false);
  // The loop runs first: what the start tells waits in a loop of its own, which the script must be able to end.
  QTimer::singleShot(0, &program, [&program] { program.Start(); });
  TPlayer player(program, script, picture);
  const int status = QApplication::exec();
  const int result = player.Finish();
  return status != 0 ? status : result;
}

}  // namespace tolvi
