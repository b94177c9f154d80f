// The workbench. `tolvi-workbench --help` tells its options.
#include <QApplication>
#include <QCommandLineParser>
#include <QFileInfo>
#include <QIcon>
#include <QThreadPool>
#include <QTimer>
#include <cstdio>
#include <cstdlib>

#include "apps/workbench/script/player.h"
#include "apps/workbench/window/program.h"
#include <tolvi/connect/connecturl.h>
#include <tolvi/foundation/errors.h>
#include <tolvi/ui/qtext.h>

using namespace tolvi;

namespace {

struct TTexts {
  Q_DECLARE_TR_FUNCTIONS(tolvi::main)
};

/// Says what Qt wants to say, but for what the offscreen platform says of every window.
void TellUnlessUsual(QtMsgType, const QMessageLogContext&, const QString& text) {
  if (!text.startsWith(QStringLiteral("This plugin does not support"))) std::fprintf(stderr, "%s\n", qPrintable(text));
}

TSource NamedSource(const QCommandLineParser& arguments, const QString& database) {
  TSource source = SourceOf(database);
  const auto path = [&arguments](const QString& option) {
    return arguments.isSet(option) ? FromQString(QFileInfo(arguments.value(option)).absoluteFilePath()) : std::string();
  };
  source.ModelFile = path(QStringLiteral("model"));
  source.QueryFolder = path(QStringLiteral("queries"));
  source.QueriesInDatabase = arguments.isSet(QStringLiteral("queries-in-database"));
  return source;
}

int Run(const TProgram::TOptions& options, const QCommandLineParser& arguments) {
  TProgram program(options);
  const QString script = QStringLiteral("script"), picture = QStringLiteral("screenshot");
  if (arguments.isSet(script) || arguments.isSet(picture)) {
    return PlayScript(program, arguments.value(script), arguments.value(picture));
  }
  // What opening asks has a loop of its own, which is to be one within that of the program.
  QTimer::singleShot(0, &program, &TProgram::Start);
  return QApplication::exec();
}

}  // namespace

int main(int argc, char** argv) try {
  qInstallMessageHandler(TellUnlessUsual);
  QApplication application(argc, argv);
  // These name folders, the last one is for people.
  QCoreApplication::setOrganizationName(QStringLiteral("tolvi"));
  QCoreApplication::setApplicationName(QStringLiteral("workbench"));
  QGuiApplication::setApplicationDisplayName(QStringLiteral("Tolvi Workbench"));
  QCoreApplication::setApplicationVersion(QStringLiteral(TOLVI_VERSION));
  QGuiApplication::setDesktopFileName(QStringLiteral("tolvi-workbench"));
  QApplication::setWindowIcon(QIcon(QStringLiteral(":/icons/tolvi-workbench.svg")));

  QCommandLineParser arguments;
  arguments.setApplicationDescription(TTexts::tr("Ask databases in sentences."));
  arguments.addHelpOption();
  arguments.addVersionOption();
  arguments.addPositionalArgument(
      QStringLiteral("DATABASE"),
      TTexts::tr("An SQLite file, or a URL as docs/databases.md tells; without it, what was open "
                 "the last time, at first the sample."),
      QStringLiteral("[DATABASE]"));
  const QString file = QStringLiteral("FILE"), folder = QStringLiteral("FOLDER");
  arguments.addOptions(
      {{QStringLiteral("model"), TTexts::tr("The data model: a model text or XML."), file},
       {QStringLiteral("queries"), TTexts::tr("The folder of the queries."), folder},
       {QStringLiteral("queries-in-database"), TTexts::tr("The queries are in the database.")},
       {QStringLiteral("sample"), TTexts::tr("Open the sample.")},
       {QStringLiteral("home"), TTexts::tr("Keep settings, unsaved work and the sample there."), folder},
       {QStringLiteral("script"), TTexts::tr("Play the script with keys and clicks, then quit; see docs/workbench.md."),
        file},
       {QStringLiteral("screenshot"), TTexts::tr("Write a picture of the window, at the end of the script, then quit."),
        file}});
  arguments.process(application);
  if (arguments.positionalArguments().size() > 1) throw EException("only one database can be opened");

  TProgram::TOptions options{arguments.value(QStringLiteral("home"))};
  options.OpensSample = arguments.isSet(QStringLiteral("sample"));
  if (!arguments.positionalArguments().isEmpty()) {
    const QString database = arguments.positionalArguments().constFirst();
    // Before any window: what is no URL is told where it was typed.
    options.Source = NamedSource(arguments, database);
    if (IsConnectionUrl(FromQString(database))) options.Password = ParseConnectionUrl(FromQString(database)).Password;
  }
  const int status = Run(options, arguments);
  // A server that does not answer may keep a thread, but not the program.
  constexpr int patience = 500;
  if (QThreadPool::globalInstance()->waitForDone(patience)) return status;
  std::fflush(nullptr);
  std::_Exit(status);
} catch (const std::exception& error) {
  std::fprintf(stderr, "tolvi-workbench: %s\n", error.what());
  return 2;
}
