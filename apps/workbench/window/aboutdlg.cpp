#include "apps/workbench/window/aboutdlg.h"

#include <QCoreApplication>
#include <QMessageBox>

namespace tolvi {
namespace {

struct TTexts {
  Q_DECLARE_TR_FUNCTIONS(tolvi::TAbout)
};

}  // namespace

void ShowAbout(QWidget* parent) {
  QMessageBox box(parent);
  box.setObjectName(QStringLiteral("about"));
  box.setWindowTitle(TTexts::tr("About the workbench"));
  box.setTextFormat(Qt::PlainText);
  box.setText(QStringLiteral("Tolvi Workbench %1").arg(QStringLiteral(TOLVI_VERSION)));
  box.setInformativeText(
      TTexts::tr(
          "Ask databases in sentences: Tolvi writes the SQL. All that you see here is made of the panels and dialogs "
          "of "
          "the Tolvi library, which other programs can use, too.\n\n"
          "Tolvi comes under the MIT licence. As this program shows SQL with QScintilla and charts with Qt Charts, it "
          "comes as a whole under the GNU General Public License, version 3. It also uses Qt %1, libxlsxwriter and "
          "QtKeychain.")
          .arg(QString::fromLatin1(qVersion())));
  box.exec();
}

}  // namespace tolvi
