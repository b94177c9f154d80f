#pragma once

#include <QComboBox>
#include <QString>

#include <tolvi/foundation/fieldtypes.h>
#include <tolvi/ui/qtext.h>

namespace tolvi {

/// A choice of a field type by its identifier; `unknown` stands for `ftUnknown`.
inline QComboBox* MakeTypeCombo(const QString& unknown, QWidget* parent) {
  auto* combo = new QComboBox(parent);
  combo->addItem(unknown, int{ftUnknown});
  for (int type = ftUnknown + 1; type < FieldTypeCount; ++type) {
    combo->addItem(ToQString(FldTypeToStr(static_cast<TFieldType>(type))), type);
  }
  return combo;
}
inline TFieldType TypeOf(const QComboBox& combo) { return static_cast<TFieldType>(combo.currentData().toInt()); }
inline void ShowType(QComboBox& combo, TFieldType type) { combo.setCurrentIndex(combo.findData(int{type})); }

}  // namespace tolvi
