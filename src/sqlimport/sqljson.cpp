#include <algorithm>
#include <string_view>

#include <tolvi/foundation/json.h>
#include <tolvi/sqlimport/sqljson.h>

namespace tolvi {

namespace {

// Deeper lines are indented no further, or the text of deep brackets would grow with the square of their number.
constexpr std::size_t MaxIndent = 40;

/// Writes an object or a list in the braces that it is given, entry after entry.
class TJsonGroup final {
 public:
  TJsonGroup(std::string& out, std::string_view braces) : FOut(out), FClose(braces[1]) { FOut += braces[0]; }

  /// Begins an entry, after a blank or on a line of its own.
  void Entry() {
    if (!FEmpty) FOut += ", ";
    FEmpty = false;
  }
  void EntryOnLine(std::size_t indent) {
    FOut += FEmpty ? "\n" : ",\n";
    FEmpty = false;
    FOut.append(std::min(indent, MaxIndent), ' ');
  }
  void Name(std::string_view name) { FOut.append("\"").append(name).append("\": "); }
  void Text(std::string_view name, std::string_view value) {
    Entry();
    Name(name);
    AppendJsonString(FOut, value);
  }
  void Plain(std::string_view name, std::string_view value) {
    Entry();
    Name(name);
    FOut += value;
  }
  void Close() { FOut += FClose; }
  /// On a line of its own, unless the group is empty.
  void CloseOnLine(std::size_t indent) {
    if (!FEmpty) (FOut += '\n').append(std::min(indent, MaxIndent), ' ');
    Close();
  }

 private:
  std::string& FOut;
  const char FClose;
  bool FEmpty = true;
};

constexpr std::string_view BoolText(bool value) { return value ? "true" : "false"; }

void AppendField(std::string& out, const TSQLResultField& field) {
  TJsonGroup object(out, "{}");
  object.Text("expr", field.GetSQLExpr());
  object.Text("alias", field.GetAlias());
  object.Text("caption", field.GetCaption());
  object.Plain("sorting", std::to_string(field.GetSorting()));
  object.Plain("sortOrder", std::to_string(field.GetSortOrder()));
  object.Close();
}

void AppendTable(std::string& out, const TSQLTable& table) {
  TJsonGroup object(out, "{}");
  object.Text("name", table.GetTableName());
  object.Text("alias", table.GetAliasName());
  object.Close();
}

void AppendNode(std::string& out, const TSQLNode& node, std::size_t indent) {
  TJsonGroup object(out, "{}");
  if (const TSQLCondition* condition = node.AsCondition()) {
    object.Text("kind", "condition");
    object.Text("left", condition->GetLeftExpr());
    object.Text("op", condition->GetOperation());
    object.Text("right", condition->GetRightExpr());
    object.Plain("negative", BoolText(condition->GetNegative()));
    object.Plain("subQuery", BoolText(condition->GetContainsSubQuery()));
  } else {
    const TSQLBracket& bracket = *node.AsBracket();
    object.Text("kind", "bracket");
    object.Text("op", bracket.GetBoolOperator());
    object.Plain("negative", BoolText(bracket.GetNegative()));
    object.Plain("nodes", "");
    TJsonGroup nodes(out, "[]");
    for (const TSQLNode& inner : bracket.Nodes()) {
      nodes.EntryOnLine(indent + 2);
      AppendNode(out, inner, indent + 2);
    }
    nodes.CloseOnLine(indent);
  }
  object.Close();
}

template <typename TList, typename TAppend>
void AppendList(std::string& out, const TList& list, TAppend append) {
  TJsonGroup group(out, "[]");
  for (const auto& entry : list) {
    group.EntryOnLine(4);
    append(out, entry);
  }
  group.CloseOnLine(2);
}

}  // namespace

std::string SQLResultToJson(const TJParserResult& result) {
  std::string out;
  TJsonGroup object(out, "{}");
  const auto member = [&object](std::string_view name) {
    object.EntryOnLine(2);
    object.Name(name);
  };
  member("distinct");
  out += BoolText(result.GetDistinct());
  member("allFields");
  out += BoolText(result.GetAllRFields());
  member("justSorting");
  out += BoolText(result.ResultFields().GetJustSorting());
  member("fields");
  AppendList(out, result.ResultFields(), AppendField);
  member("tables");
  AppendList(out, result.Tables(), AppendTable);
  member("where");
  if (const TSQLBracket* where = result.GetWhereClause()) {
    AppendNode(out, *where, 2);
  } else {
    out += "null";
  }
  object.CloseOnLine(0);
  return out += '\n';
}

}  // namespace tolvi
