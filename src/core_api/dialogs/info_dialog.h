// A report to read: a title, a heading and lines, with one button to close it. The text can be
// selected and copied.
#pragma once

#include "core_api/text/vor_string_array.h"
#include "platform/export.h"

class CWnd;

inline constexpr int infoDialogNumber = 8710;
inline constexpr int infoHeading = 1001;
inline constexpr int infoLines = 1002;

class VORMANT_API DlgInfoData {
  public:
    virtual ~DlgInfoData() = default;

    Vor_String title;
    Vor_String heading;
    Vor_StringArray lines;
};

/// Shows the report and waits until it is closed.
VORMANT_API void ExportStartDlgInfo(const DlgInfoData& data, CWnd* parent = nullptr);
