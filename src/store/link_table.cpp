#include "store/link_table.h"

const TableLayout& LinksTable()
{
    static const TableLayout links{"links",
                                   {{"SiteName", "TEXT"},
                                    {"WebAddress", "TEXT"},
                                    {"MailAddress", "TEXT"},
                                    {"Description1", "TEXT"},
                                    {"Description2", "TEXT"}}};
    return links;
}
