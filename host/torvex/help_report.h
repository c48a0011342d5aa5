// Telling the user that help cannot open.
#pragma once

/// From now on the user is told, once in a run, that help cannot open when he asks for it, and which file was looked
/// for.
void TellWhereHelpIsMissing();
