// Strings.
#pragma once

#include <afx.h>
