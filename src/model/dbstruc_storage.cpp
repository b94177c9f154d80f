#include <tolvi/foundation/enumnames.h>
#include <tolvi/foundation/files.h>
#include <tolvi/foundation/global.h>
#include <tolvi/model/dbstruc.h>
#include <tolvi/model/modeltext.h>
#include <tolvi/model/modeltext_keys.h>

// Saving, loading and streaming of the model.

namespace tolvi {

void TJCustomDBStructure::SaveToStrings(TStrings& lines) const {
  lines.Clear();
  bool processed = false;
  if (const TInOutModelEvent handler = OnSaveModel) handler(*this, lines, processed);
  if (!processed) lines.SetText(WriteModelText(*this));
}

void TJCustomDBStructure::LoadFromStrings(const TStrings& lines) {
  const TInOutModelEvent handler = OnLoadModel;
  if (!handler) return LoadText(lines.GetText());
  TStrings copy = lines;
  bool processed = false;
  handler(*this, copy, processed);
  if (!processed) LoadText(copy.GetText());
}

// Reads into a model of its own, so that a text that cannot be read changes nothing here.
void TJCustomDBStructure::LoadText(std::string_view text) {
  TJCustomDBStructure read;
  read.ClearOperators();
  read.FSQLFormats = FSQLFormats;
  read.FDMOptions = FDMOptions;
  read.FVersion = ReadModelText(text, read);
  TakeContent(read);
}

void TJCustomDBStructure::SaveToFile(const std::filesystem::path& file) const {
  WriteFileAtomically(file, GetStructString());
}

void TJCustomDBStructure::LoadFromFile(const std::filesystem::path& file) { SetStructString(ReadFile(file)); }

std::string TJCustomDBStructure::GetStructString() const {
  if (!OnSaveModel) return WriteModelText(*this);
  TStrings lines;
  SaveToStrings(lines);
  return lines.GetText();
}

void TJCustomDBStructure::SetStructString(std::string_view text) {
  if (!OnLoadModel) {
    LoadText(text);
    return;
  }
  TStrings lines;
  lines.SetText(text);
  LoadFromStrings(lines);
}

void TJCustomDBStructure::AssignTo(TJCustomDBStructure& target) const {
  if (&target == this) return;
  TStrings lines;
  SaveToStrings(lines);
  // A text holds only the settings that are not the defaults.
  target.AsOneChange([&] {
    target.FSQLFormats = FSQLFormats;
    target.FDMOptions = FDMOptions;
    target.LoadFromStrings(lines);
  });
}

namespace {

constexpr TEnumName<TDMEButton> ButtonNames[] = {{dmbOpenSave, "dmbOpenSave"}, {dmbConnect, "dmbConnect"}};

constexpr TEnumName<TExOperator> ExOperatorNames[] = {
    {xoInList, "xoInList"},
    {xoBetween, "xoBetween"},
    {xoStartsWith, "xoStartsWith"},
    {xoContains, "xoContains"},
};

TFieldTypes StrToFieldTypes(std::string_view text) {
  TFieldTypes types;
  for (const std::string& name : SplitCommaText(text)) types.Include(StrToFldType(name));
  return types;
}

char OneCharacter(const std::string& text) { return text.empty() ? '\0' : text.front(); }

void DefineFormats(TPropertyFiler& filer, TSQLFormats& formats) {
  static const TSQLFormats byDefault;
  struct TTextSetting {
    std::string_view name;
    const std::string& (TSQLFormats::*get)() const;
    void (TSQLFormats::*set)(std::string_view);
  };
  static constexpr TTextSetting texts[] = {
      {"SQLFormats.Date", &TSQLFormats::GetDate, &TSQLFormats::SetDate},
      {"SQLFormats.Time", &TSQLFormats::GetTime, &TSQLFormats::SetTime},
      {"SQLFormats.DateTime", &TSQLFormats::GetDateTime, &TSQLFormats::SetDateTime},
      {"SQLFormats.FalseValue", &TSQLFormats::GetFalseValue, &TSQLFormats::SetFalseValue},
      {"SQLFormats.TrueValue", &TSQLFormats::GetTrueValue, &TSQLFormats::SetTrueValue},
      {"SQLFormats.FullTableName", &TSQLFormats::GetFullTableName, &TSQLFormats::SetFullTableName},
      {"SQLFormats.LowerFunc", &TSQLFormats::GetLowerFunc, &TSQLFormats::SetLowerFunc},
      {"SQLFormats.ListFunction", &TSQLFormats::GetListFunction, &TSQLFormats::SetListFunction},
  };
  struct TCharSetting {
    std::string_view name;
    char (TSQLFormats::*get)() const;
    void (TSQLFormats::*set)(char);
  };
  static constexpr TCharSetting characters[] = {
      {"SQLFormats.QuoteSymbol1", &TSQLFormats::GetQuoteSymbol1, &TSQLFormats::SetQuoteSymbol1},
      {"SQLFormats.QuoteSymbol2", &TSQLFormats::GetQuoteSymbol2, &TSQLFormats::SetQuoteSymbol2},
      {"SQLFormats.WildcardChar", &TSQLFormats::GetWildcardChar, &TSQLFormats::SetWildcardChar},
  };
  for (const TTextSetting& setting : texts) {
    filer.Text(
        setting.name, [&] { return (formats.*setting.get)(); },
        [&](const std::string& text) { (formats.*setting.set)(text); }, (byDefault.*setting.get)());
  }
  for (const TCharSetting& setting : characters) {
    filer.Text(
        setting.name, [&] { return std::string(1, (formats.*setting.get)()); },
        [&](const std::string& text) { (formats.*setting.set)(OneCharacter(text)); },
        std::string(1, (byDefault.*setting.get)()));
  }
  filer.Text(
      "SQLFormats.QuotedTypes", [&] { return TypesToList(formats.GetQuotedTypes()); },
      [&](const std::string& text) { formats.SetQuotedTypes(StrToFieldTypes(text)); },
      TypesToList(byDefault.GetQuotedTypes()));
  filer.Boolean(
      "SQLFormats.UseOuterKeyword", [&] { return formats.GetUseOuterKeyword(); },
      [&](bool on) { formats.SetUseOuterKeyword(on); }, true);
  filer.Boolean(
      "SQLFormats.UseAsInFrom", [&] { return formats.GetUseAsInFrom(); }, [&](bool on) { formats.SetUseAsInFrom(on); },
      false);
}

}  // namespace

void TJCustomDBStructure::DefineProperties(TPropertyFiler& filer) {
  TComponent::DefineProperties(filer);
  filer.Text(
      "DMEButtons", [this] { return SetToNames(FDMEButtons, ButtonNames); },
      [this](const std::string& text) { FDMEButtons = NamesToSet(text, ButtonNames); }, "");
  filer.Boolean(
      "DMOptions.MultiDB", [this] { return FDMOptions.GetMultiDB(); }, [this](bool on) { FDMOptions.SetMultiDB(on); },
      false);
  filer.Text(
      "DMOptions.DefaultDBOwner", [this] { return FDMOptions.GetDefaultDBOwner(); },
      [this](const std::string& name) { FDMOptions.SetDefaultDBOwner(name); }, "");
  filer.Text(
      "DMOptions.DefaultDatabase", [this] { return FDMOptions.GetDefaultDatabase(); },
      [this](const std::string& name) { FDMOptions.SetDefaultDatabase(name); }, "");
  filer.Boolean(
      "DMOptions.StoreDBInfo", [this] { return FDMOptions.GetStoreDBInfo(); },
      [this](bool on) { FDMOptions.SetStoreDBInfo(on); }, true);
  filer.Lines(
      "Struct",
      [this] {
        TStrings lines;
        SaveToStrings(lines);
        return lines;
      },
      [this](const TStrings& lines) { FStoredStructureBuf = lines; }, FStoreStruct);
}

// The text is read once the whole form is: it may need components that come after the model in the stream.
void TJCustomDBStructure::Loaded() {
  TComponent::Loaded();
  if (FStoredStructureBuf.Empty()) return;
  const TStrings lines = std::exchange(FStoredStructureBuf, {});
  LoadFromStrings(lines);
}

void TJDBStructure::DefineProperties(TPropertyFiler& filer) {
  TJCustomDBStructure::DefineProperties(filer);
  filer.Text(
      "HelpFileName", [this] { return GetHelpFileName(); }, [this](const std::string& name) { SetHelpFileName(name); },
      "");
  filer.Integer(
      "SEHelpContext", [this] { return GetSEHelpContext(); },
      [this](std::int64_t context) { SetSEHelpContext(static_cast<int>(context)); }, 0);
  filer.Boolean(
      "StoreStruct", [this] { return GetStoreStruct(); }, [this](bool on) { SetStoreStruct(on); }, true);
  DefineFormats(filer, SQLFormats());
  filer.Reference(
      "DatabaseInfo", [this]() -> TComponent* { return GetDatabaseInfo(); },
      [this](TComponent* component) {
        auto* info = dynamic_cast<TJDBInfo*>(component);
        if (info == nullptr) throw EStreamError("%s is no database information", {component->GetName()});
        SetDatabaseInfo(info);
      });
  filer.Boolean(
      "AutoAddFields", [this] { return GetAutoAddFields(); }, [this](bool on) { SetAutoAddFields(on); }, true);
  filer.Text(
      "ExOperators", [this] { return SetToNames(GetExOperators(), ExOperatorNames); },
      [this](const std::string& text) { SetExOperators(NamesToSet(text, ExOperatorNames)); },
      SetToNames(AllExOperators, ExOperatorNames));
  filer.Lines(
      "DefOperators", [this] { return GetDefOperators(); }, [this](const TStrings& lines) { SetDefOperators(lines); },
      true);
  filer.Text(
      "InitialSEPath", [this] { return GetInitialSEPath(); },
      [this](const std::string& folder) { SetInitialSEPath(folder); }, "");
}

}  // namespace tolvi
