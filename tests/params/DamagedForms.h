#pragma once

#include "params/SampleStore.h"
#include "params/StoreText.h"

#include <boost/archive/archive_exception.hpp>

#include <stdexcept>
#include <string>
#include <vector>

/// A way in which the sample's file is damaged, and what becomes of it.
struct TDamagedForm {
    using TError = boost::archive::archive_exception;

    std::string msName;  ///< a name of a file, too
    std::string msFrom;  ///< stands once in the sample's file
    std::string msTo;    ///< stands in its place
    std::string msToken; ///< in msTo: the token that is refused
    TError::exception_code meCode;
    std::string msReason; ///< what is told of it

    /// The damaged file.
    std::string Damage(std::string sFile) const
    {
        const auto nAt = sFile.find(msFrom);
        if (nAt == std::string::npos || sFile.find(msFrom, nAt + 1) != std::string::npos)
            throw std::runtime_error(msName + ": not once in the file");
        return sFile.replace(nAt, msFrom.size(), msTo);
    }

    /// The byte of the damaged file at which it is refused.
    std::size_t Offset(const std::string& rsFile) const
    {
        return rsFile.find(msFrom) + msTo.rfind(msToken);
    }
};

/// The file of the sample store.
inline std::string gSampleFile()
{
    TCircuitParams store;
    gFillSample(store);
    return gOursOf(store);
}

/// Every way.
inline std::vector<TDamagedForm> gDamagedForms()
{
    using TError = boost::archive::archive_exception;
    constexpr auto stream = TError::input_stream_error;
    constexpr auto unregistered = TError::unregistered_class;
    const std::string notUnsigned = "not a whole number from 0 on";
    const std::string notInt = "not a whole number of 32 bits";
    const std::string room = "more elements than the file has room for";
    const std::string tooLong = "a text is longer than the file";
    return {
        {"signature", "archive 17", "archivE 17", "archivE", TError::invalid_signature,
         "not an archive"},
        {"signature-length", "22 serial", "21 serial", "21", stream, "no white space follows"},
        {"version-5", "archive 17", "archive 5", "5", TError::unsupported_version,
         "an archive of an unknown version"},
        {"version-20", "archive 17", "archive 20", "20", TError::unsupported_version,
         "an archive of an unknown version"},
        {"version-no-number", "archive 17", "archive x", "x", stream, notInt},
        {"version-without-space", "archive 17 ", "archive 17x", "17x", stream,
         "no white space follows"},
        {"root-tracked", "17 0 0", "17 1 0", "1", stream, "a class that is tracked otherwise"},
        {"root-tracked-2", "17 0 0", "17 2 0", "2", stream, "neither 0 nor 1"},
        {"root-version", "17 0 0", "17 0 1", "1", TError::unsupported_class_version,
         "a class of another version"},
        {"class-untracked", "MOS1 1 0\n", "MOS1 0 0\n", "0 0", stream,
         "a class that is tracked otherwise"},
        {"table-count", "0 0 2 0 3 top", "0 0 4000000000 0 3 top", "4000000000", stream, room},
        {"table-count-all", "0 0 2 0 3 top", "0 0 18446744073709551615 0 3 top", "18446", stream,
         room},
        {"table-count-beyond", "0 0 2 0 3 top", "0 0 18446744073709551616 0 3 top", "18446", stream,
         notUnsigned},
        {"table-count-below", "0 0 2 0 3 top", "0 0 -1 0 3 top", "-1", stream, notUnsigned},
        {"table-count-one-more", "0 0 2 0 3 top", "0 0 3 0 3 top", "3 top", stream, ""},
        {"item-version", "0 0 2 0 3 top", "0 0 2 1 3 top", "1 3", TError::unsupported_class_version,
         "elements of another version"},
        {"text-length", " 4 nmos 1 ", " 99999999999 nmos 1 ", "99999999999", stream, tooLong},
        {"text-length-all", " 4 nmos 1 ", " 18446744073709551615 nmos 1 ", "184", stream, tooLong},
        {"text-length-beyond", " 4 nmos 1 ", " 99999999999999999999 nmos 1 ",
         "99999999999999999999", stream, notUnsigned},
        {"text-length-below", " 4 nmos 1 ", " -4 nmos 1 ", "-4", stream, notUnsigned},
        {"text-cut", " 4 nmos 1 ", " 3 nmos 1 ", "3", stream, "no white space follows"},
        {"new-id-ahead", "\n0 0 0 4 MOS1", "\n5 0 0 4 MOS1", "5", stream,
         "not the id of the next object"},
        {"new-id-of-an-old-object", "\n3 1 2 n2", "\n1 1 2 n2", "1 1", stream,
         "not the id of the next object"},
        {"new-id-beyond", "\n3 1 2 n2", "\n4294967296 1 2 n2", "429", stream, "no id of an object"},
        {"new-id-below", "\n3 1 2 n2", "\n-1 1 2 n2", "-1", stream, notUnsigned},
        {"pointer-class-beyond-the-table", "8 0 18 1", "8 0 99 1", "99", unregistered,
         "a pointer of another class"},
        {"pointer-class-below", "8 0 18 1", "8 0 -2 1", "-2", unregistered,
         "a pointer of another class"},
        {"pointer-class-of-another", "8 0 18 1", "8 0 8 1", "8 1", unregistered,
         "a pointer of another class"},
        {"pointer-to-another-class", "8 0 18 1", "8 0 18 0", "0", TError::pointer_conflict,
         "a pointer to no object of its class"},
        {"pointer-to-a-value", "8 0 18 1", "8 0 18 2", "2", TError::pointer_conflict,
         "a pointer to no object of its class"},
        {"pointer-to-nothing", "8 0 18 1", "8 0 18 77", "77", TError::pointer_conflict,
         "a pointer to no object of its class"},
        {"pointer-to-the-next-object", "8 0 18 1", "8 0 18 4", "4", TError::pointer_conflict,
         "a pointer to no object of its class"},
        {"pointer-below", "8 0 18 1", "8 0 18 -1", "-1", stream, notUnsigned},
        {"is-set-2", "3 vto 0 ", "3 vto 2 ", "2", stream, "neither 0 nor 1"},
        {"level-beyond", " 4 nmos 1 1.5", " 4 nmos 2147483648 1.5", "2147483648", stream, notInt},
        {"level-no-number", " 4 nmos 1 1.5", " 4 nmos one 1.5", "one", stream, notInt},
        {"double-no-number", "1.50000000000000000e+00", "x.5", "x.5", stream, "not a number"},
        {"double-beyond", "1.50000000000000000e+00", "1e999", "1e999", stream, "not a number"},
        {"double-without-space", "1.50000000000000000e+00 ", "1.5e+00x ", "1.5", stream,
         "no white space follows"},
        {"double-two-signs", "1.50000000000000000e+00 ", "+-1.5 ", "+-1.5", stream, "not a number"},
        {"double-too-long", "1.50000000000000000e+00 ", "1." + std::string(400, '0') + ' ', "1.",
         stream, "not a number"},
        {"which-4", "\n2 2 6.5", "\n2 4 6.5", "4", TError::unsupported_version,
         "a value of an unknown kind"},
        {"which-no-number", "\n2 2 6.5", "\n2 z 6.5", "z", stream, notInt},
    };
}
