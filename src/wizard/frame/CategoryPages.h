#pragma once

#include "wizard/frame/CommandPage.h"

// The pages of the tree's categories: a heading and a button per command. They carry no command of
// their own.

class CAnalysisPage : public CCommandPage
{
public:
    CAnalysisPage();
    bool BuildCommand(CString& rsCommand) override;

protected:
    TMessageMap GetMessageMap() const override;
    void DoDataExchange(CDataExchange* pDX) override;

private:
    void OnButton(int nId);
};

class CCurrentSourcePage : public CCommandPage
{
public:
    CCurrentSourcePage();
    bool BuildCommand(CString& rsCommand) override;

protected:
    TMessageMap GetMessageMap() const override;
    void DoDataExchange(CDataExchange* pDX) override;

private:
    void OnButton(int nId);
};

class CFilesPage : public CCommandPage
{
public:
    CFilesPage();
    bool BuildCommand(CString& rsCommand) override;

protected:
    TMessageMap GetMessageMap() const override;
    void DoDataExchange(CDataExchange* pDX) override;

private:
    void OnButton(int nId);
};

class CInitializationPage : public CCommandPage
{
public:
    CInitializationPage();
    bool BuildCommand(CString& rsCommand) override;

protected:
    TMessageMap GetMessageMap() const override;
    void DoDataExchange(CDataExchange* pDX) override;

private:
    void OnButton(int nId);
};

class COutputPage : public CCommandPage
{
public:
    COutputPage();
    bool BuildCommand(CString& rsCommand) override;

protected:
    TMessageMap GetMessageMap() const override;
    void DoDataExchange(CDataExchange* pDX) override;

private:
    void OnButton(int nId);
};

class CSettingsPage : public CCommandPage
{
public:
    CSettingsPage();
    bool BuildCommand(CString& rsCommand) override;

protected:
    TMessageMap GetMessageMap() const override;
    void DoDataExchange(CDataExchange* pDX) override;

private:
    void OnButton(int nId);
};

class CVoltageSourcePage : public CCommandPage
{
public:
    CVoltageSourcePage();
    bool BuildCommand(CString& rsCommand) override;

protected:
    TMessageMap GetMessageMap() const override;
    void DoDataExchange(CDataExchange* pDX) override;

private:
    void OnButton(int nId);
};

class COptimizationPage : public CCommandPage
{
public:
    COptimizationPage();
    bool BuildCommand(CString& rsCommand) override;

protected:
    TMessageMap GetMessageMap() const override;
    void DoDataExchange(CDataExchange* pDX) override;

private:
    void OnButton(int nId);
};
