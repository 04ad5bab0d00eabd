// The one way in which starters run their dialogs: the caller's data is copied into the dialog, the
// dialog runs, and its data is copied back when it ends with OK. Hosts expect no exceptions: a
// starter that runs out of memory reports it and counts as cancelled, with the data as it was.
#pragma once

#include <new>
#include <utility>

#include "core_api/dialogs/no_memory.h"
#include "core_api/resource_override.h"
#include "platform/window/message_box.h"

enum class CopyBack { onOk, never, always };

/// True when the dialog ended with OK. A dialog that cannot be made leaves `data` as it was.
template <class Dialog, class Data>
bool runDialog(Dialog& dialog, Data& data, CopyBack copyBack = CopyBack::onOk) {
    dialog.data() = data;
    const bool isOk = dialog.doModal() == IDOK;
    if (copyBack == CopyBack::always || (isOk && copyBack == CopyBack::onOk)) {
        Data taken = dialog.data();  // a copy that fails leaves the caller's alone
        data = std::move(taken);
    }
    return isOk;
}

/// The common starter: a dialog of the module's own resources.
template <class Dialog, class Data>
bool startDialog(Data& data, CopyBack copyBack = CopyBack::onOk) {
    const ResourceOverrideScope resources;
    Dialog dialog;
    return runDialog(dialog, data, copyBack);
}
