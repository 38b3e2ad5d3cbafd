#pragma once

#include "records/table_layout.h"

/// The table of web links, which lies in the draw database.
const TableLayout& LinksTable();
