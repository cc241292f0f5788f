#include "params/XmlStore.h"

#include "params/Serialize.h"

#include <boost/archive/archive_exception.hpp>
#include <boost/archive/xml_archive_exception.hpp>
#include <boost/archive/xml_iarchive.hpp>
#include <boost/archive/xml_oarchive.hpp>
#include <boost/serialization/throw_exception.hpp>

#include <algorithm>
#include <array>
#include <cstddef>
#include <istream>
#include <locale>
#include <ostream>
#include <streambuf>
#include <string_view>

namespace
{

constexpr std::size_t kBlock = 1U << 16U;

/// A source as a stream takes it. It keeps some bytes of the block before, to look back at.
class CSourceBuffer : public std::streambuf
{
public:
    explicit CSourceBuffer(IByteSource& rSource) : mrSource(rSource) {}

    /// The name in the tag that was read last, if that is an end tag: "a" of "</a>".
    [[nodiscard]] std::string_view GetEndTag() const
    {
        std::string_view sRead(eback(), static_cast<std::size_t>(gptr() - eback()));
        const auto nTag = sRead.rfind("</");
        if (nTag == std::string_view::npos) {
            return {};
        }
        sRead.remove_prefix(nTag + 2);
        return sRead.substr(0, sRead.find_first_of("> \t\r\n"));
    }

protected:
    int_type underflow() override
    {
        const std::size_t nKept = std::min(kLookBack, static_cast<std::size_t>(gptr() - eback()));
        char* const pBlock = mBlock.data() + nKept;
        std::copy(gptr() - static_cast<std::ptrdiff_t>(nKept), gptr(), mBlock.data());
        const std::size_t nRead = mrSource.Read(pBlock, kBlock);
        setg(mBlock.data(), pBlock, pBlock + nRead);
        return nRead > 0 ? traits_type::to_int_type(*pBlock) : traits_type::eof();
    }

private:
    static constexpr std::size_t kLookBack = 256;

    IByteSource& mrSource;
    std::array<char, kLookBack + kBlock> mBlock{};
};

class CTargetBuffer : public std::streambuf
{
public:
    explicit CTargetBuffer(IByteTarget& rTarget) : mrTarget(rTarget)
    {
        setp(mBlock.data(), mBlock.data() + mBlock.size());
    }

protected:
    int_type overflow(int_type nByte) override
    {
        sync();
        if (!traits_type::eq_int_type(nByte, traits_type::eof())) {
            sputc(traits_type::to_char_type(nByte));
        }
        return traits_type::not_eof(nByte);
    }
    int sync() override
    {
        mrTarget.Write(pbase(), static_cast<std::size_t>(pptr() - pbase()));
        setp(mBlock.data(), mBlock.data() + mBlock.size());
        return 0;
    }

private:
    IByteTarget& mrTarget;
    std::array<char, kBlock> mBlock{};
};

// The head and the foot as the library writes them, but for the version, which is always 17.
constexpr const char* kHead = "<?xml version=\"1.0\" encoding=\"UTF-8\" standalone=\"yes\" ?>\n"
                              "<!DOCTYPE boost_serialization>\n"
                              "<boost_serialization signature=\"serialization::archive\" "
                              "version=\"17\">\n";
constexpr const char* kFoot = "</boost_serialization>\n";

} // namespace

void gLoadXml(IByteSource& rSource, TCircuitParams& rStore)
{
    CSourceBuffer buffer(rSource);
    std::istream stream(&buffer);
    stream.imbue(std::locale::classic());
    boost::archive::xml_iarchive archive(stream);
    constexpr const char* name = "CircuitParams";
    archive >> boost::serialization::make_nvp(name, rStore);
    // The library doesn't compare the name of the outermost element.
    if (buffer.GetEndTag() != name) {
        boost::serialization::throw_exception(boost::archive::xml_archive_exception(
            boost::archive::xml_archive_exception::xml_archive_tag_mismatch, name));
    }
}

void gSaveXml(IByteTarget& rTarget, const TCircuitParams& rStore)
{
    CTargetBuffer buffer(rTarget);
    std::ostream stream(&buffer);
    stream.imbue(std::locale::classic());
    stream << kHead;
    {
        boost::archive::xml_oarchive archive(stream, boost::archive::no_header);
        // kept: another name than the reader's, so that what is written can't be read
        archive << boost::serialization::make_nvp("cCircuitParams", rStore);
        stream << kFoot;
    } // the archive ends with one more line end
    stream.flush();
    // Not by exceptions of the stream: the archive's destructor writes, too.
    if (!stream) {
        boost::serialization::throw_exception(boost::archive::archive_exception(
            boost::archive::archive_exception::output_stream_error));
    }
}
