#pragma once

#include <QString>
#include <cstdint>

#include <tolvi/store/storedqueries.h>
class QWidget;

namespace tolvi {

class TJCustomDBStructure;

enum TConflictChoice : std::uint8_t { ccCancel, ccSaveMine, ccTakeTheirs, ccKeepBoth };

/// Shows the own text and what is stored now side by side, in sentences, what differs marked; with a null `model`, or
/// one that cannot read a text, the text itself. "Keep both" is offered only where something is stored.
TConflictChoice AskConflict(QWidget* parent, const EQueryConflictError& error, TJCustomDBStructure* model);

/// Does what was chosen, for the query of that number: the own text replaces the stored one, or is dropped, or becomes
/// a query of its own, "Name (mine)". Links show what is then the current query; a query that was erased leaves the
/// list with `ccTakeTheirs`. Raises what storing raises, `EQueryConflictError` again when the store has changed
/// meanwhile.
void SettleConflict(TJStoredQueryBase& base, int index, const EQueryConflictError& error, TConflictChoice choice);

/// The query of the text in sentences, or the text where the model cannot read it.
QString SentencesOf(const std::string& text, TJCustomDBStructure* model);

}  // namespace tolvi
