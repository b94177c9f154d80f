#pragma once

#include <string_view>

#include <tolvi/foundation/sections.h>
#include <tolvi/model/conditions.h>
#include <tolvi/model/valueeditors.h>

namespace tolvi {

// Value editors in model texts.

/// The keys of a field's editor, all but the lines of an SQL editor's query. Null is an editor without keys.
void WriteEditorKeys(TSectionWriter& writer, const TDSValueEditor* editor);
void ReadEditorKeys(const TSection& section, TDSValueEditor* editor);

/// The editors of a condition's values, as one key: comma text with an item for each value, which holds the keys of its
/// editor as lines. Nothing is written for a condition whose values have no editor.
void WriteValueEditors(TSectionWriter& writer, const TDSValueList& values);
void ReadValueEditors(const TSection& section, TDSValueList& values, TJCustomDBStructure& model);

}  // namespace tolvi
