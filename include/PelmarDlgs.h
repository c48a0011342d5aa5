// PelmarDlgs: the options and defaults of the NC module. All that a host needs.
//
// Order of use: load the library; InitPelmarDlgsDLL; InitializePelmarDlgsDLL; then records and pages; at the end
// FinalizePelmarDlgsDLL. Everything is for the host's user-interface thread.
#pragma once

#include "expr/evaluator.h"
#include "expr/expression_edits.h"
#include "frame/module.h"
#include "frame/settings_locations.h"
#include "frame/settings_values.h"
#include "pages/lathe.h"
#include "pages/lathe_axes.h"
#include "pages/milling_2axis.h"
#include "pages/option_page.h"
