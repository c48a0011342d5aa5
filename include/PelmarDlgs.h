// PelmarDlgs: the options and defaults of the NC module. All that a host needs.
//
// Order of use: load the library; InitPelmarDlgsDLL; InitializePelmarDlgsDLL; then records and pages; at the end
// FinalizePelmarDlgsDLL. Everything is for the host's user-interface thread.
#pragma once

#include "dialogs/default_tools.h"
#include "dialogs/defaults_file_chooser.h"
#include "dialogs/nc_defaults.h"
#include "dialogs/nc_dialog.h"
#include "dialogs/setup_sheet.h"
#include "dialogs/template_options.h"
#include "expr/evaluator.h"
#include "expr/expression_edits.h"
#include "frame/module.h"
#include "frame/settings_locations.h"
#include "frame/settings_values.h"
#include "pages/chamfer_mill.h"
#include "pages/face_mill.h"
#include "pages/flat_surface.h"
#include "pages/groove_mill.h"
#include "pages/hole_process.h"
#include "pages/lathe.h"
#include "pages/lathe_axes.h"
#include "pages/milling_2axis.h"
#include "pages/milling_3axis.h"
#include "pages/milling_4axis.h"
#include "pages/milling_5axis.h"
#include "pages/option_page.h"
#include "pages/round_mill.h"
#include "pages/slot_mill.h"
#include "pages/wire_edm.h"
#include "pages/z_finish.h"
#include "pages/z_rough.h"
