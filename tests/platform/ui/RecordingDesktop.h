#pragma once

#include "platform/headless/HeadlessDesktop.h"
#include "platform/ui/LogDialog.h"

#include <memory>
#include <string>

/// The name of an aspect as logs spell it.
inline std::string gAspectName(EAspect aspect)
{
    switch (aspect) {
    case EAspect::Text:
        return "text";
    case EAspect::Enabled:
        return "enabled";
    case EAspect::Visible:
        return "visible";
    case EAspect::Place:
        return "place";
    case EAspect::Items:
        return "items";
    case EAspect::Selection:
        return "selection";
    case EAspect::Check:
        return "check";
    case EAspect::Expansion:
        return "expansion";
    case EAspect::Focus:
        return "focus";
    }
    return "?";
}

/// A desktop whose peers write down their life and what they hear: "+name" made, "name enabled"
/// heard, "-name" gone. A run is "run".
class CRecordingDesktop : public HeadlessDesktop
{
public:
    explicit CRecordingDesktop(TLog& rLog) : mrLog(rLog) {}

    std::unique_ptr<IWindowPeer> MakePeer(CWnd& rWnd) override
    {
        return std::make_unique<CPeer>(mrLog, gControlPlace(rWnd));
    }

    void RunModal(CDialog& rDialog) override
    {
        mrLog.emplace_back("run");
        HeadlessDesktop::RunModal(rDialog);
    }

private:
    class CPeer : public IWindowPeer
    {
    public:
        CPeer(TLog& rLog, std::string sName) : mrLog(rLog), msName(std::move(sName))
        {
            mrLog.push_back('+' + msName);
        }
        ~CPeer() override { mrLog.push_back('-' + msName); }
        CPeer(const CPeer&) = delete;
        CPeer& operator=(const CPeer&) = delete;
        void OnChanged(EAspect aspect) override
        {
            mrLog.push_back(msName + ' ' + gAspectName(aspect));
        }

    private:
        TLog& mrLog;
        std::string msName;
    };

    TLog& mrLog;
};
