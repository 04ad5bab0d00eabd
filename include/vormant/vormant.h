// The whole module.
#pragma once

#include <vormant/bill.h>
#include <vormant/core.h>
#include <vormant/frame.h>
#include <vormant/host.h>
#include <vormant/macros.h>
#include <vormant/mapping.h>
#include <vormant/sections.h>
#include <vormant/spread.h>
#include <vormant/standards.h>
