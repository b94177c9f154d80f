#include <QAccessible>
#include <QApplication>
#include <iostream>

#include <gtest/gtest.h>

namespace {

/// The offscreen platform says for every window what it cannot do.
void TellUnlessUsual(QtMsgType, const QMessageLogContext&, const QString& text) {
  if (!text.startsWith(QStringLiteral("This plugin does not support"))) std::cerr << text.toStdString() << '\n';
}

}  // namespace

/// As any test program; "--rtl" mirrors all widgets.
int main(int argc, char** argv) {
  if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  qInstallMessageHandler(TellUnlessUsual);
  testing::InitGoogleTest(&argc, argv);
  QApplication app(argc, argv);
  app.setStyle(QStringLiteral("Fusion"));
  if (app.arguments().contains(QStringLiteral("--rtl"))) app.setLayoutDirection(Qt::RightToLeft);
  return RUN_ALL_TESTS();
}
