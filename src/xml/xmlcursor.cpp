#include <algorithm>
#include <utility>

#include <tolvi/foundation/text.h>
#include <tolvi/xml/xmlcursor.h>
#include <tolvi/xml/xmltext.h>

namespace tolvi {
namespace {

/// Attributes of this namespace tell editors where the schema is.
constexpr QLatin1StringView SchemaInstance("http://www.w3.org/2001/XMLSchema-instance");

std::string Joined(const std::vector<std::string>& names, std::string_view before, std::string_view after) {
  std::string text;
  for (const std::string& name : names) {
    if (!text.empty()) text += ", ";
    text.append(before).append(name).append(after);
  }
  return text;
}

QString DecodedText(std::string_view xml) {
  if (xml.starts_with(ByteOrderMark)) xml.remove_prefix(ByteOrderMark.size());
  if (!IsValidUtf8(xml)) {
    const std::vector<std::string_view> lines = SplitLines(xml);
    const auto wrong = std::find_if_not(lines.begin(), lines.end(), IsValidUtf8);
    throw EModelXmlError(wrong - lines.begin() + 1, 1, "this line is no UTF-8. Save the document in that encoding");
  }
  return QString::fromUtf8(xml.data(), static_cast<qsizetype>(xml.size()));
}

}  // namespace

bool TXmlElement::Has(std::string_view attribute) const {
  return std::any_of(FAttributes.begin(), FAttributes.end(),
                     [attribute](const TAttribute& each) { return each.Name == attribute; });
}

std::optional<std::string> TXmlElement::Take(std::string_view attribute) {
  FAsked.emplace_back(attribute);
  for (TAttribute& each : FAttributes) {
    if (each.Name != attribute) continue;
    each.Taken = true;
    return UnescapeFromXml(each.Value);
  }
  return std::nullopt;
}

void TXmlElement::CheckAllTaken() const {
  for (const TAttribute& each : FAttributes) {
    if (each.Taken) continue;
    const std::string known = FAsked.empty() ? "none" : Joined(FAsked, "", "");
    Fail("<" + FName + "> has no attribute \"" + each.Name + "\". Its attributes: " + known);
  }
}

TXmlCursor::TXmlCursor(std::string_view xml) : FText(DecodedText(xml)), FReader(FText) {}

void TXmlCursor::MoveTo(qsizetype offset) {
  for (; FOffset < offset; ++FOffset) {
    const bool isLineEnd = FText[FOffset] == QChar::LineFeed;
    FColumn = isLineEnd ? 1 : FColumn + 1;
    FLine += isLineEnd ? 1 : 0;
  }
}

QXmlStreamReader::TokenType TXmlCursor::Next() {
  // A token begins where the one before it ends; a text ends behind the "<" that the reader has looked at.
  switch (FReader.tokenType()) {
    case QXmlStreamReader::StartElement:
    case QXmlStreamReader::EndElement:
    case QXmlStreamReader::Comment:
      MoveTo(FReader.characterOffset());
      break;
    default:
      break;
  }
  const QXmlStreamReader::TokenType token = FReader.readNext();
  if (token == QXmlStreamReader::DTD) {
    MoveTo(FText.indexOf(QLatin1StringView("<!DOCTYPE"), FOffset));
    FailHere("document types are not read. Remove <!DOCTYPE ...> and its entities");
  }
  if (token == QXmlStreamReader::Invalid) {
    std::string reason = FReader.errorString().toStdString();
    if (reason.ends_with('.')) reason.pop_back();
    MoveTo(std::min<qsizetype>(FReader.characterOffset(), FText.size()));
    FailHere("this is no well-formed XML: " + reason);
  }
  return token;
}

void TXmlCursor::TakeStartTag() {
  std::vector<TXmlElement::TAttribute> attributes;
  for (const QXmlStreamAttribute& attribute : FReader.attributes()) {
    if (attribute.namespaceUri() == SchemaInstance) continue;
    attributes.push_back({attribute.qualifiedName().toUtf8().toStdString(), attribute.value().toUtf8().toStdString()});
  }
  FAsked.clear();
  // There is no "<" in a start tag but the first.
  MoveTo(FText.lastIndexOf(QLatin1Char('<'), FReader.characterOffset() - 1));
  FElement.emplace(FReader.qualifiedName().toUtf8().toStdString(), FLine, FColumn, std::move(attributes));
  if (!FReader.namespaceUri().isEmpty()) FElement->Fail("the elements of a model have no namespace. Remove xmlns");
}

bool TXmlCursor::NextChild() {
  for (;;) {
    switch (Next()) {
      case QXmlStreamReader::StartElement:
        TakeStartTag();
        return true;
      case QXmlStreamReader::EndElement:
      case QXmlStreamReader::EndDocument:
        return false;
      case QXmlStreamReader::Characters:
        if (!FReader.isWhitespace()) FailHere("only elements may stand here, and no text");
        break;
      default:
        break;
    }
  }
}

void TXmlCursor::ReadEnd() {
  while (Next() != QXmlStreamReader::EndDocument) {
  }
}

bool TXmlCursor::Is(std::string_view name) {
  FAsked.emplace_back(name);
  return FElement->Name() == name;
}

void TXmlCursor::FailUnknown(std::string_view parent) const {
  FElement->Fail("<" + std::string(parent) + "> has no element <" + FElement->Name() +
                 ">. Its elements: " + (FAsked.empty() ? "none" : Joined(FAsked, "<", ">")));
}

std::string TXmlCursor::ReadText() {
  const TXmlElement element = TakeElement();
  element.CheckAllTaken();
  std::string text;
  for (;;) {
    switch (Next()) {
      case QXmlStreamReader::Characters:
        text += FReader.text().toUtf8().toStdString();
        break;
      case QXmlStreamReader::EndElement:
        return text;
      case QXmlStreamReader::StartElement:
        TakeStartTag();
        FailUnknown(element.Name());
      default:
        break;
    }
  }
}

void TXmlCursor::ReadNothing(std::string_view name) {
  if (NextChild()) FailUnknown(name);
}

}  // namespace tolvi
