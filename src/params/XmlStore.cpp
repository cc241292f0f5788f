#include "params/XmlStore.h"

#include "params/Serialize.h"

#include <boost/archive/archive_exception.hpp>
#include <boost/archive/xml_iarchive.hpp>
#include <boost/archive/xml_oarchive.hpp>
#include <boost/serialization/throw_exception.hpp>

#include <array>
#include <istream>
#include <locale>
#include <ostream>
#include <streambuf>

namespace
{

constexpr std::size_t kBlock = 1U << 16U;

class CSourceBuffer : public std::streambuf
{
public:
    explicit CSourceBuffer(IByteSource& rSource) : mrSource(rSource) {}

protected:
    int_type underflow() override
    {
        const std::size_t nRead = mrSource.Read(mBlock.data(), mBlock.size());
        setg(mBlock.data(), mBlock.data(), mBlock.data() + nRead);
        return nRead > 0 ? traits_type::to_int_type(mBlock.front()) : traits_type::eof();
    }

private:
    IByteSource& mrSource;
    std::array<char, kBlock> mBlock{};
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
    archive >> boost::serialization::make_nvp("CircuitParams", rStore);
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
