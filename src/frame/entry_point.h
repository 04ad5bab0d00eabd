// What the host calls when it loads and unloads the module.
#pragma once

#include "platform/export.h"
#include "platform/window/bitmap.h"

namespace AcRx {

enum AppMsgCode : int { kInitAppMsg = 1, kUnloadAppMsg = 2 };
enum AppRetCode { kRetOK = 0 };

}  // namespace AcRx

/// `application` is the host's handle. Messages other than those above change nothing. Always
/// kRetOK.
extern "C" VORMANT_API AcRx::AppRetCode acrxEntryPoint(AcRx::AppMsgCode message, void* application);

/// The pictures of check-box cells; empty before the module is initialised.
extern VORMANT_API CBitmap gBitmapChecked;
extern VORMANT_API CBitmap gBitmapUnchecked;
