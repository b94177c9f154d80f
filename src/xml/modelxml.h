#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>

#include <tolvi/foundation/errors.h>
#include <tolvi/model/dbstruc.h>
#include <tolvi/xml/api.h>

namespace tolvi {

// The model as an XML document, which holds all that the model text holds: docs/model-xml.md.

/// The version that is written and the newest that is read.
inline constexpr std::int32_t CurrentModelXmlVersion = 1;

/// Raised when a document cannot be read. The message begins with the place: "Line 3, column 7: ...".
class TOLVI_XML_API EModelXmlError : public EException {
 public:
  EModelXmlError(std::int64_t line, std::int64_t column, std::string_view reason)
      : EException("Line %d, column %d: %s", {line, column, reason}), FLine(line), FColumn(column), FReason(reason) {}

  /// Counted from 1, the column in UTF-16 units: the element in which the fault is.
  std::int64_t Line() const noexcept { return FLine; }
  std::int64_t Column() const noexcept { return FColumn; }
  /// The message without the place.
  const std::string& Reason() const noexcept { return FReason; }

 private:
  std::int64_t FLine, FColumn;
  std::string FReason;
};

/// The whole model as a document in UTF-8, lines ended by LF.
TOLVI_XML_API std::string ModelToXml(const TJCustomDBStructure& model);

/// Replaces the model's content by that of the document; `OnChange` fires once, `OnLoadModel` does not. Settings
/// elements that the document lacks leave `SQLFormats` and `DMOptions` as they are. Raises `EModelXmlError` for a
/// document that is no XML, has a document type, is no data model or is of a newer version; the model is then left as
/// it was.
TOLVI_XML_API void LoadModelFromXml(TJCustomDBStructure& model, std::string_view xml);

/// The same with files; also raise `EFileError`. The file is written whole or not at all.
TOLVI_XML_API void SaveModelToXmlFile(const TJCustomDBStructure& model, const std::filesystem::path& file);
TOLVI_XML_API void LoadModelFromXmlFile(TJCustomDBStructure& model, const std::filesystem::path& file);

/// Whether the text is XML rather than a model text: its first byte that is no white space is "<".
TOLVI_XML_API bool IsModelXml(std::string_view text);
/// Loads a document or a model text, whichever it is.
TOLVI_XML_API void LoadModelFromAnyText(TJCustomDBStructure& model, std::string_view text);

}  // namespace tolvi
