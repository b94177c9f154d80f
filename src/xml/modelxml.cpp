#include <tolvi/foundation/files.h>
#include <tolvi/foundation/text.h>
#include <tolvi/xml/modelxml.h>
#include <tolvi/xml/modelxml_parts.h>

namespace tolvi {

std::string ModelToXml(const TJCustomDBStructure& model) { return WriteModelXml(model); }

void LoadModelFromXml(TJCustomDBStructure& model, std::string_view xml) {
  // A model of its own, so that a document that cannot be read changes nothing here.
  TJCustomDBStructure read;
  read.ClearOperators();
  read.SQLFormats() = model.SQLFormats();
  read.DMOptions() = model.DMOptions();
  ReadModelXml(xml, read);
  model.TakeContent(read);
}

void SaveModelToXmlFile(const TJCustomDBStructure& model, const std::filesystem::path& file) {
  WriteFileAtomically(file, ModelToXml(model));
}

void LoadModelFromXmlFile(TJCustomDBStructure& model, const std::filesystem::path& file) {
  LoadModelFromXml(model, ReadFile(file));
}

bool IsModelXml(std::string_view text) {
  if (text.starts_with(ByteOrderMark)) text.remove_prefix(ByteOrderMark.size());
  return Trim(text).starts_with('<');
}

void LoadModelFromAnyText(TJCustomDBStructure& model, std::string_view text) {
  if (IsModelXml(text)) return LoadModelFromXml(model, text);
  model.SetStructString(text);
}

}  // namespace tolvi
