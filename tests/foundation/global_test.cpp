#include <gtest/gtest.h>

#include <tolvi/foundation/global.h>

namespace tolvi {
namespace {

template <typename TCall>
std::string ErrorOf(TCall call) {
  try {
    call();
  } catch (const EConvertError& error) {
    return error.Message();
  }
  return "no error";
}

TEST(FieldKinds, HaveNamesThatAreReadInAnyCase) {
  EXPECT_EQ(FldKindToStr(jfkVirtual), "jfkVirtual");
  EXPECT_EQ(StrToFldKind("JFKDATA"), jfkData);
  EXPECT_EQ(ErrorOf([] { StrToFldKind("data"); }), "'data' is not a valid field kind");
}

TEST(FieldTypes, KeepTheirStoredOrdinals) {
  for (const auto& [type, ordinal] : {std::pair(ftString, 1), std::pair(ftFixedChar, 23), std::pair(ftTimeStamp, 36)}) {
    EXPECT_EQ(FieldTypeByOrdinal(ordinal), type);
  }
  EXPECT_EQ(FieldTypeByOrdinal(52), std::nullopt);
  EXPECT_EQ(FieldTypeByOrdinal(-1), std::nullopt);
}

TEST(FieldTypes, ReadBackTheirIdentifiers) {
  for (int ordinal = 0; ordinal < FieldTypeCount; ++ordinal) {
    const auto type = static_cast<TFieldType>(ordinal);
    EXPECT_EQ(StrToFldType(FldTypeToStr(type)), type);
  }
  EXPECT_EQ(FldTypeToStr(ftFixedWideChar), "ftFixedWideChar");
  EXPECT_EQ(FldTypeToStr(ftSingle), "ftSingle");
  EXPECT_EQ(StrToFldType("FTTIMESTAMP"), ftTimeStamp);
  EXPECT_EQ(TryStrToFldType("String"), std::nullopt);
  EXPECT_EQ(ErrorOf([] { StrToFldType(""); }), "'' is not a valid field type");
}

TEST(DayNumbers, AreTextsOfTheLocale) {
  TFormatSettings comma;
  comma.DecimalSeparator = ',';
  EXPECT_EQ(TvDateTimeToStr(36526), "36526");
  EXPECT_EQ(TvDateTimeToStr(36526.25), "36526.25");
  EXPECT_EQ(TvDateTimeToStr(36526.25, comma), "36526,25");
  EXPECT_EQ(TvStrToDateTime("36526,25", comma), 36526.25);
  EXPECT_EQ(ErrorOf([] { TvStrToDateTime("36526,25"); }), "'36526,25' is not a valid floating point value");
}

TEST(Lines, AreHandedOutAsOneTextThatEndsWithZero) {
  EXPECT_STREQ(GetStringsAsAnsiChar({"a", "ż"}).get(), "a\r\nż\r\n");
  EXPECT_STREQ(GetStringsAsAnsiChar({}).get(), "");
}

TEST(Errors, CarryTheirCodeAndTheFormattedMessage) {
  const EJDBStructError error(4, "No such table %s", {"Orders"});
  EXPECT_EQ(error.ErrorCode(), 4);
  EXPECT_EQ(error.Message(), "No such table Orders");
  EXPECT_EQ(EListError::OutOfBounds(-1).Message(), "List index out of bounds (-1)");
}

}  // namespace
}  // namespace tolvi
