#include "platform/ui/ItemList.h"

#include <algorithm>

CString CItemList::GetText(int nIndex) const
{
    return IsIndex(nIndex) ? mItems[static_cast<std::size_t>(nIndex)] : CString();
}

bool CItemList::SetText(int nIndex, const CString& rsText)
{
    if (!IsIndex(nIndex))
        return false;
    mItems[static_cast<std::size_t>(nIndex)] = rsText;
    return true;
}

bool CItemList::Select(int nIndex)
{
    mnSelection = IsIndex(nIndex) ? nIndex : -1;
    return mnSelection >= 0;
}

int CItemList::Insert(int nIndex, const CString& rsText)
{
    const int nAt = nIndex == -1 ? GetCount() : nIndex;
    if (nAt < 0 || nAt > GetCount())
        return -1;
    mItems.insert(mItems.begin() + nAt, rsText);
    if (mnSelection >= nAt)
        ++mnSelection;
    return nAt;
}

int CItemList::InsertSorted(const CString& rsText)
{
    const auto place = std::upper_bound(mItems.begin(), mItems.end(), rsText,
                                        [](const CString& rsLeft, const CString& rsRight) {
                                            return rsLeft.CompareNoCase(rsRight) < 0;
                                        });
    return Insert(static_cast<int>(place - mItems.begin()), rsText);
}

bool CItemList::Remove(int nIndex)
{
    if (!IsIndex(nIndex))
        return false;
    mItems.erase(mItems.begin() + nIndex);
    if (mnSelection == nIndex)
        mnSelection = -1;
    else if (mnSelection > nIndex)
        --mnSelection;
    return true;
}

void CItemList::Clear()
{
    mItems.clear();
    mnSelection = -1;
}

int CItemList::FindExact(int nAfter, std::string_view sText) const
{
    const int nCount = GetCount();
    const int nStart = IsIndex(nAfter) ? nAfter + 1 : 0;
    for (int nStep = 0; nStep < nCount; ++nStep) {
        const int nAt = (nStart + nStep) % nCount;
        if (mItems[static_cast<std::size_t>(nAt)].CompareNoCase(sText) == 0)
            return nAt;
    }
    return -1;
}
