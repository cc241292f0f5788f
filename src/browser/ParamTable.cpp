#include "browser/ParamTable.h"

#include "platform/ui/Translate.h"

TParamTableData gMakeEmptyTable(std::initializer_list<const char*> titles)
{
    TParamTableData table;
    table.mColumnTitles.reserve(titles.size());
    for (const char* const pTitle : titles) {
        table.mColumnTitles.emplace_back(xlang::gTranslate(pTitle));
    }
    return table;
}
