#pragma once

#include <cstdint>
#include <initializer_list>
#include <stdexcept>
#include <string>
#include <string_view>

#include <tolvi/foundation/api.h>
#include <tolvi/foundation/format.h>

namespace tolvi {

/// Base of every exception that the library raises. `what()` is the message, ready to be shown to a person.
class TOLVI_CORE_API EException : public std::runtime_error {
 public:
  explicit EException(const std::string& message) : std::runtime_error(message) {}
  EException(std::string_view message, std::initializer_list<TFormatArg> args)
      : std::runtime_error(Format(message, args)) {}

  std::string Message() const { return what(); }
};

/// Text that cannot be converted to a number, a date or an enumeration.
class TOLVI_CORE_API EConvertError : public EException {
 public:
  using EException::EException;
};

/// An index outside a list.
class TOLVI_CORE_API EListError : public EException {
 public:
  using EException::EException;
  /// "List index out of bounds (%d)" with the index.
  static EListError OutOfBounds(std::int64_t index);
};

/// A file that cannot be read or written; the message names it and the reason.
class TOLVI_CORE_API EFileError : public EException {
 public:
  using EException::EException;
};

/// A component text that cannot be read; the message names the line.
class TOLVI_CORE_API EStreamError : public EException {
 public:
  using EException::EException;
};

/// Base of the errors that carry a code besides their message.
class TOLVI_CORE_API EJTarvelonError : public EException {
 public:
  EJTarvelonError(std::int32_t errorCode, const std::string& message) : EException(message), FErrorCode(errorCode) {}
  EJTarvelonError(std::int32_t errorCode, std::string_view message, std::initializer_list<TFormatArg> args)
      : EException(message, args), FErrorCode(errorCode) {}

  std::int32_t ErrorCode() const noexcept { return FErrorCode; }

 private:
  std::int32_t FErrorCode;
};

/// Raised by the data model.
class TOLVI_CORE_API EJDBStructError : public EJTarvelonError {
 public:
  using EJTarvelonError::EJTarvelonError;
};

/// Raised by the query definition and the query panel.
class TOLVI_CORE_API EJQueryPanelError : public EJTarvelonError {
 public:
  using EJTarvelonError::EJTarvelonError;
};

/// Raised by the catalogue source.
class TOLVI_CORE_API EJDBInfoError : public EJTarvelonError {
 public:
  using EJTarvelonError::EJTarvelonError;
};

/// Raised by the query store.
class TOLVI_CORE_API EJQueryBaseError : public EJTarvelonError {
 public:
  using EJTarvelonError::EJTarvelonError;
};

/// Raised by the SQL parser. The message ends with a line break, CR LF, and "Line:" with the number of the line.
class TOLVI_CORE_API ESQLParserError : public EException {
 public:
  ESQLParserError(std::string_view message, std::int32_t line);

  /// Counted from 1.
  std::int32_t Line() const noexcept { return FLine; }

 private:
  std::int32_t FLine;
};

/// Raised when a SELECT statement cannot be made a query. The message begins with the place: "Line 3, column 7: ...".
class TOLVI_CORE_API ESQLImportError : public EException {
 public:
  ESQLImportError(std::int32_t line, std::int32_t column, std::string_view reason);

  /// Counted from 1, the column in bytes.
  std::int32_t Line() const noexcept { return FLine; }
  std::int32_t Column() const noexcept { return FColumn; }
  /// The message without the place.
  const std::string& Reason() const noexcept { return FReason; }

 private:
  std::int32_t FLine, FColumn;
  std::string FReason;
};

/// Raised by the result fields panel.
class TOLVI_CORE_API ERFPanelError : public EException {
 public:
  using EException::EException;
};

/// Raised by the structure designer.
class TOLVI_CORE_API EStructureDesignError : public EException {
 public:
  using EException::EException;
};

/// Raised by the drop-down label controls.
class TOLVI_CORE_API EDDLabelError : public EException {
 public:
  using EException::EException;
};

}  // namespace tolvi
