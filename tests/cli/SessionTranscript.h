#pragma once

#include "cli/Wizard.h"

#include <string>
#include <vector>

/// Requests that several transcripts begin with.
inline const std::string kOpen = R"({"op":"open","page":"Tests/All kinds"})";
inline const std::string kState = R"({"op":"state"})";

/// A request and a part of its reply as JSON: the members that matter, objects in them again in
/// part.
struct TExchange {
    std::string sRequest;
    std::string sReply;
};

/// Runs a session with the wizard as in a fresh process. Result: its output.
std::string gServe(const quorvawiz::cli::TWizard& rWizard, const std::string& rsInput);

/// Runs the transcript's requests; a reply that differs, lacks or is too many fails the test.
void gExpectTranscript(const quorvawiz::cli::TWizard& rWizard,
                       const std::vector<TExchange>& rTranscript);

/// The same with the test wizard.
void gExpectTranscript(const std::vector<TExchange>& rTranscript);
