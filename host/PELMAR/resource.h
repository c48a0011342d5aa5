// Ids of the post-processor library's resources.
#pragma once

#define IDS_CHOOSE_TEMPLATE 100 // %1 operation
#define IDS_TEMPLATE_FILES 101
#define IDS_ALL_FILES 102
#define IDS_PATH_NOT_EXPRESSIBLE 103
