#include "capture/capture_bytes.h"
#include "capture/capture_reader.h"
#include "fuzz/support.h"

#include <sstream>
#include <vector>

namespace
{

struct Contents
{
    std::vector<std::uint64_t> places;
    bool isCut = false;
    bool isDamaged = false;
};

// Gives the frames; what they hold together is no more than what was in the file.
Contents contentsOf(const std::string& file)
{
    Contents contents;
    std::istringstream stream(file);
    try
    {
        capture::CaptureReader reader(stream);
        std::size_t held = 0;
        for (capture::Frame frame; reader.next(frame);)
        {
            held += frame.json.size() + 2 * frame.message.size() + 2 * frame.name.size() + frame.content.size();
            fuzz::require(held <= file.size() && frame.names.size() <= file.size() / 4);
            contents.places.push_back(frame.place);
        }
        contents.isCut = reader.isCut();
    }
    catch (const capture::CaptureError&)
    {
        contents.isDamaged = true;
    }
    return contents;
}

// Makes the checksums right, which the fuzzer seldom does.
std::string mended(std::string file)
{
    const auto put = [&file](std::size_t begin, std::size_t end) {
        std::string sum;
        capture::appendNumber(sum, capture::checksum(0, file.data() + begin, end - begin));
        file.replace(end, sum.size(), sum);
    };
    std::size_t place = capture::kHeaderSize;
    if (file.size() >= place)
    {
        put(0, place - 4);
    }
    while (place + capture::kFrameHeadSize + 4 <= file.size())
    {
        const auto size = capture::numberAt<std::uint64_t>(file.data() + place + 12);
        const std::size_t left = file.size() - place - capture::kFrameHeadSize - 4;
        if (size > left)
        {
            break;
        }
        const std::size_t end = place + capture::kFrameHeadSize + static_cast<std::size_t>(size);
        put(place, end);
        place = end + 4;
    }
    return file;
}

} // namespace

// As it is, and with right checksums; cut at its middle, what is read is the same up to there.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string input(reinterpret_cast<const char*>(data), size); // NOLINT: the fuzzer's bytes are unsigned
    contentsOf(input);
    const std::string file = mended(input);
    const Contents whole = contentsOf(file);
    fuzz::require(!(whole.isCut && whole.isDamaged));
    const Contents half = contentsOf(file.substr(0, size / 2));
    fuzz::require(half.places.size() <= whole.places.size() &&
                  std::equal(half.places.begin(), half.places.end(), whole.places.begin()));
    return 0;
}
