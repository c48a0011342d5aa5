// Topics of the help file.
#pragma once

#include <span>

#include <afxwin.h>

/// The topic that explains a control.
struct HelpTopic {
    int control;
    const char* topic;
};

/// The topic that the user asked for. Outside context-help mode that is the general one; in it, the topic of the
/// control at `position` (screen coordinates), where the table has one. Ends the mode.
const char* ChooseTopic(const CWnd& window, CPoint position, const char* general, std::span<const HelpTopic> topics);

/// Shows a topic of the help file. Where the system has no help viewer nothing happens, now and later.
void ShowTopic(const CWnd& window, const char* topic);
