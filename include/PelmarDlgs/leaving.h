// How a user leaves a field whose text is refused.
//
// An edit that loses the focus hands over the data of its page or dialog, and a text that is refused brings up a prompt
// and the focus back. Not so where that would stand in the user's way:
//
// - On the way to Cancel (the button IDCANCEL of the window or of one around it), to Esc and to the close box nothing
//   is taken and nothing asked.
// - On the way to a button that restores the defaults, what is accepted is taken; what is refused gives way to them.
// - On the way to another control around the page (OK, Apply, a tab, a host's button), what is accepted is taken. What
//   is refused is asked about once: by what a click there does, or right afterwards, where a click asks nothing and the
//   focus rests on the control.
#pragma once

#include <afxwin.h>

#include "PelmarDlgs/export.h"

namespace pelmar {

/// Tells that a button of the host's, in the window around a page or dialog, restores its defaults (it sends
/// kSetDefaultsMessage). Once for each window of the button; the button needs no further care. A button that is not
/// told of restores them as well when it is clicked; but a user who comes to it with the keyboard is asked about a text
/// that is refused.
PELMAR_API void MarkAsDefaultsButton(HWND button);

} // namespace pelmar
