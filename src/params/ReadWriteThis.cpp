#include "params/CircuitParams.h"
#include "params/FileOpenException.h"
#include "params/ParamsFileError.h"
#include "params/TextStore.h"
#include "params/XmlStore.h"
#include "params/archive/ArchiveError.h"
#include "params/archive/FileSource.h"
#include "params/archive/SavedFile.h"

#include <exception>
#include <string>

namespace
{

constexpr const char* kOpenFailed = "Params file open failed!";
constexpr const char* kReadFailed = "Params file ReadThis() operation failed!";
constexpr const char* kWriteFailed = "Params file WriteThis() operation failed!";

bool IsXml(const CStringU& rsFormat)
{
    return rsFormat.CompareNoCase("XML") == 0;
}

std::string DetailOf(const CParamsArchiveError& rError)
{
    return "byte " + std::to_string(rError.GetOffset()) + ": " + rError.GetReason();
}

} // namespace

int TCircuitParams::ReadThis(const CStringU& rsPath, const CStringU& rsFormat)
{
    try {
        CFileSource source(rsPath);
        if (!IsXml(rsFormat)) {
            return gLoadText(source, *this);
        }
        gLoadXml(source, *this);
        return 0;
    } catch (const CParamsArchiveError& rError) {
        throw CParamsFileError(kReadFailed, DetailOf(rError));
    } catch (const quorvaapi::FileOpenException& rError) {
        throw CParamsFileError(kOpenFailed, rError.what());
    } catch (const std::exception& rError) { // of the archive library, and others
        throw CParamsFileError(kReadFailed, rError.what());
    } catch (...) {
        throw CParamsFileError(kReadFailed, "an unknown exception");
    }
}

void TCircuitParams::WriteThis(const CStringU& rsPath, const CStringU& rsFormat) const
{
    try {
        CSavedFile target(rsPath);
        if (IsXml(rsFormat)) {
            gSaveXml(target, *this);
        } else {
            gSaveText(target, *this);
        }
        target.Finish();
    } catch (const boost::archive::archive_exception& rError) {
        throw CParamsFileError(kWriteFailed, rError.what());
    } catch (const quorvaapi::FileOpenException& rError) {
        throw CParamsFileError(kOpenFailed, rError.what());
    } catch (const std::exception& rError) {
        throw CParamsFileError(rError.what(), rError.what());
    } catch (...) {
        throw CParamsFileError(kWriteFailed, "an unknown exception");
    }
}
