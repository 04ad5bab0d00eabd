// What a host gives the module: its own services (Host), transactions, a window system that shows
// the dialogs, or a script that answers them (ScriptedUser).
#pragma once

#include "platform/host/host.h"
#include "platform/host/transaction.h"
#include "platform/window/scripted_user.h"
