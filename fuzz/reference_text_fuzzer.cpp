// The reference file's bytes through decoding and parsing, as the load takes them.

#include "data/reference_file.h"
#include "data/text_decoding.h"
#include "foundation/text.h"

#include <cassert>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const velmora::DecodedText decoded =
        velmora::decodeText(std::string(reinterpret_cast<const char*>(data), size));
    if (!decoded.text) {
        return 0;
    }
    // Whatever the encoding, what comes out is UTF-8.
    assert(velmora::isValidUtf8(*decoded.text));
    const velmora::ReferenceTable table = velmora::parseReferenceTable(*decoded.text);
    assert(table.stones.size() <= table.rows);
    for (std::size_t i = 1; i < table.stones.size(); ++i) {
        const std::string_view a = table.stones[i - 1].StoneName;
        const std::string_view b = table.stones[i].StoneName;
        assert(!velmora::text::isAscii(a) || !velmora::text::isAscii(b) || !(b < a));
    }
    for (const velmora::Stones& stone : table.stones) {
        assert(stone.NEW == "1");
    }
    return 0;
}
