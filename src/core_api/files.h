// Files as the core module offers them, by host-style path (platform/paths.h): whole files of
// lines, record files, listings. Text is Windows-1252; lines end in "\n" when written, and "\r\n"
// is accepted; files above textFileLimit are refused. Writing is all or nothing. On failure outputs
// stay as they were and `message`, when asked for, says what failed, where and what to do.
#pragma once

#include <cstddef>
#include <cstdint>

#include "core_api/text/vor_string_array.h"
#include "platform/host/error_status.h"

inline constexpr std::size_t textFileLimit = 32u << 20;  // bytes

/// The lines of the file without their ends. An empty file has no lines.
VORMANT_API ErrorStatus ObjectExportReadFile(std::string_view path, Vor_StringArray& lines,
                                             Vor_String* message = nullptr);
VORMANT_API ErrorStatus ObjectExportWriteFile(std::string_view path, const Vor_StringArray& lines,
                                              Vor_String* message = nullptr);

using RecordRows = Vor_Array<Vor_StringArray>;

/// A record file: one record a line, fields separated by tabs; inside a field tab, line end,
/// carriage return and backslash are written \t \n \r \\. `name` is the file's base name without
/// extension.
VORMANT_API bool readFile(std::string_view path, Vor_String& name, RecordRows& records,
                          Vor_String* message = nullptr);
VORMANT_API bool writeFile(std::string_view path, const RecordRows& records,
                           Vor_String* message = nullptr);

/// The same on texts. False with the message "source:line: what is wrong; what to do".
VORMANT_API bool readRecords(std::string_view text, std::string_view source, RecordRows& records,
                             Vor_String& message);
VORMANT_API Vor_String writeRecords(const RecordRows& records);

/// Paths of the files in `folder` matching `pattern` ("*.tws"), alphabetically, each beginning
/// with `folder`. No such folder gives none.
VORMANT_API Vor_StringArray ObjectExportFindFiles(std::string_view folder,
                                                  std::string_view pattern);
/// Those in the folders below too.
VORMANT_API Vor_StringArray ObjectExportFindFilesRecursive(std::string_view folder,
                                                           std::string_view pattern);

/// Last change in nanoseconds since 1970. eInvalidInput when there is no such file.
VORMANT_API ErrorStatus ObjectExportGetFileTime(std::string_view path, std::int64_t& time);
VORMANT_API bool ObjectExportFileExists(std::string_view path);

/// Creates the folder and those above it.
VORMANT_API ErrorStatus ObjectExportCreateDirectory(std::string_view path,
                                                    Vor_String* message = nullptr);
