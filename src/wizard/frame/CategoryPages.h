#pragma once

#include "wizard/frame/CommandPage.h"

// The pages of the tree's categories: a heading and a button per command. They carry no command of
// their own.

/// What they all do: a button posts the place of its page to the tree.
class CCategoryPage : public CCommandPage
{
public:
    /// Builds nothing; false.
    bool BuildCommand(CString& rsCommand) override;

protected:
    /// @param nCategory the place of the category among the root nodes
    CCategoryPage(const DialogTemplate& rTemplate, int nCategory);

    TMessageMap GetMessageMap() const override;
    void DoDataExchange(CDataExchange* pDX) override;

private:
    void OnButton(int nId);

    const std::size_t mnButtons;
    const int mnCategory;
};

class CAnalysisPage : public CCategoryPage
{
public:
    CAnalysisPage();
};

class CCurrentSourcePage : public CCategoryPage
{
public:
    CCurrentSourcePage();
};

class CFilesPage : public CCategoryPage
{
public:
    CFilesPage();
};

class CInitializationPage : public CCategoryPage
{
public:
    CInitializationPage();
};

class COutputPage : public CCategoryPage
{
public:
    COutputPage();
};

class CSettingsPage : public CCategoryPage
{
public:
    CSettingsPage();
};

class CVoltageSourcePage : public CCategoryPage
{
public:
    CVoltageSourcePage();
};

class COptimizationPage : public CCategoryPage
{
public:
    COptimizationPage();
};
