#pragma once

// Numbers in nvList.rc.
#define toolboxBitmap 101
#define aboutName 201
#define aboutVersion 202
#define aboutLink 203
