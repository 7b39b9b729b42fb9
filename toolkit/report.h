#pragma once

// The add-on of the toolkit for what hosts and driver authors tell about a device and a choice.
#include "toolkit/report/by_kind.h"
#include "toolkit/report/change_report.h"
#include "toolkit/report/device_check.h"
#include "toolkit/report/dry_run.h"
#include "toolkit/report/findings_table.h"
#include "toolkit/report/fit_custom_items.h"
#include "toolkit/report/item_value.h"
#include "toolkit/report/run.h"
#include "toolkit/report/snapshot.h"
#include "toolkit/report/table.h"
#include "toolkit/report/text.h"
#include "toolkit/report/words.h"
