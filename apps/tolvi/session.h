#pragma once

#include <string>
#include <vector>

#include "apps/tolvi/commands.h"
#include "apps/tolvi/input.h"
#include "apps/tolvi/options.h"
#include <tolvi/model/dbstruc.h>
#include <tolvi/query/querpnl.h>

namespace tolvi {

/// The output could not be written; `Reason` is the system's error number, 0 when it is not known.
struct EOutputError {
  int Reason = 0;
};

/// One run of the program: its arguments, the model and the query that they name. All commands work on it.
class TSession {
 public:
  TSession(const TArguments& arguments, TStreams& streams) : Arguments(arguments), Streams(streams) {}

  /// Read the files of --model, --query (or the one named); raise `EInputError`. The query gets the syntax and the
  /// clauses of the options.
  void LoadModel(const std::string& file);
  void LoadModel() { LoadModel(std::string(Arguments.Value("model"))); }
  void LoadQuery(const std::string& file);
  void LoadAll();
  /// Standard output; raises `EOutputError` once it fails.
  void Print(std::string_view text);
  void CheckOutput();
  /// On standard error: what the query names and the model lacks, what the statement leaves out.
  void TellWarnings(const std::vector<TQueryWarning>& warnings);

  const TArguments& Arguments;
  TStreams& Streams;
  TSource ModelSource, QuerySource;
  TJDBStructure Model;
  TJQueryPanel Panel;
};

/// The commands; each returns the exit status.
int RunSql(TSession& session);
int RunFilters(TSession& session);
int RunPath(TSession& session);
int RunModel(TSession& session);
int RunQuery(TSession& session);
int RunExplain(TSession& session);
int RunCheck(TSession& session);
int RunInitModel(TSession& session);
int RunRun(TSession& session);
int RunStore(TSession& session);
int RunParse(TSession& session);
int RunImport(TSession& session);

}  // namespace tolvi
