#pragma once

#include <QString>
#include <QXmlStreamReader>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include <tolvi/xml/modelxml.h>

namespace tolvi {

/// A start tag. Its attributes are taken one by one; what nobody takes is an error.
class TXmlElement final {
 public:
  struct TAttribute {
    std::string Name, Value;
    bool Taken = false;
  };

  TXmlElement(std::string name, std::int64_t line, std::int64_t column, std::vector<TAttribute> attributes)
      : FName(std::move(name)), FLine(line), FColumn(column), FAttributes(std::move(attributes)) {}

  const std::string& Name() const { return FName; }
  bool Has(std::string_view attribute) const;
  /// The value of the attribute, escapes put back; nothing when there is none.
  std::optional<std::string> Take(std::string_view attribute);
  /// Raises `EModelXmlError` when an attribute was not taken; the message says which there may be.
  void CheckAllTaken() const;

  /// Calls `set` and raises the errors of the library as errors of this place. `what` names the part of the element.
  template <typename TSet>
  void Setting(std::string_view what, TSet set) const {
    try {
      set();
    } catch (const EModelXmlError&) {
      throw;
    } catch (const EException& error) {
      Fail(std::string(what) + ": " + error.Message());
    }
  }
  [[noreturn]] void Fail(std::string_view reason) const { throw EModelXmlError(FLine, FColumn, reason); }

 private:
  std::string FName;
  std::int64_t FLine, FColumn;
  std::vector<TAttribute> FAttributes;
  std::vector<std::string> FAsked;
};

/// Walks through a document from start tag to start tag. Comments and processing instructions are passed over;
/// document types, and with them entities of the document's own, are refused.
class TXmlCursor final {
 public:
  /// Raises `EModelXmlError` for a text that is no UTF-8.
  explicit TXmlCursor(std::string_view xml);

  /// Moves to the root, to the next child of the element entered last; false, at its end, when there is none. Every
  /// child must be read to its end before the next one.
  bool NextChild();
  /// Behind the root: raises the errors of what follows.
  void ReadEnd();

  /// The start tag at which the cursor is.
  const TXmlElement& Element() const { return *FElement; }
  TXmlElement TakeElement() { return std::move(*FElement); }
  /// Whether the start tag is of that name.
  bool Is(std::string_view name);
  /// For a start tag that `Is` did not find: the message says what was asked for.
  [[noreturn]] void FailUnknown(std::string_view parent) const;
  /// The text of the element, escapes and all, up to its end.
  std::string ReadText();
  /// The end of an element without children.
  void ReadNothing(std::string_view name);

 private:
  QXmlStreamReader::TokenType Next();
  void TakeStartTag();
  void MoveTo(qsizetype offset);
  [[noreturn]] void FailHere(std::string_view reason) const { throw EModelXmlError(FLine, FColumn, reason); }

  // The reader knows where a token ends; where it begins is looked up in the text.
  const QString FText;
  QXmlStreamReader FReader;
  qsizetype FOffset = 0;
  std::int64_t FLine = 1, FColumn = 1;
  std::optional<TXmlElement> FElement;
  std::vector<std::string> FAsked;
};

}  // namespace tolvi
