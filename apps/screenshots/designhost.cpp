#include "apps/screenshots/designhost.h"

#include <QApplication>
#include <QSettings>
#include <QTest>
#include <utility>

#include <tolvi/foundation/errors.h>
#include <tolvi/ui/qtext.h>
#include <tolvi/xml/modelxml.h>

namespace tolvi {

TDesignHost::TDesignHost(std::filesystem::path database) : FDatabase(std::move(database)) {
  QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, FPlaces.path());
  FModel.SetDMEButtons({dmbOpenSave, dmbConnect});
  FModel.OnConnectClick = [this](TJCustomDBStructure&) { Connect(); };
}

std::vector<TModelFormat> TDesignHost::Formats() {
  return {{QStringLiteral("XML documents"), QStringLiteral("xml"),
           [](const QString& file, TJCustomDBStructure& model) { LoadModelFromXmlFile(model, ToPath(file)); },
           [](const QString& file, const TJCustomDBStructure& model) { SaveModelToXmlFile(model, ToPath(file)); }}};
}

void TDesignHost::Connect() {
  FConnection.emplace(ParseConnectionUrl("sqlite:" + FDatabase.string()), TSqlConnectOptions{.ReadOnly = true});
  FInfo = std::make_unique<TJSqlDBInfo>(FConnection->GetName());
  FModel.SetDatabaseInfo(FInfo.get());
}

const std::string& TDesignHost::GetConnectionName() const {
  if (!FConnection) throw EException("there is no connection yet");
  return FConnection->GetName();
}

T_dlgModelEdit& TDesignHost::Open() {
  FEditor = std::make_unique<T_dlgModelEdit>(FModel, Formats());
  FEditor->show();
  QApplication::setActiveWindow(FEditor.get());
  if (!QTest::qWaitForWindowActive(FEditor.get())) throw EException("the editor cannot be opened");
  return *FEditor;
}

}  // namespace tolvi
