// SPDX-License-Identifier: MIT
// Base64 both ways. The stored lists are Base64 text in the settings file,
// which anyone can edit, so Decode() meets arbitrary text; and whatever is
// encoded must come back byte for byte.

#include "ILMBase64Codec.h"
#include "LMFuzzSupport.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

using namespace Lumeran;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view bytes(reinterpret_cast<const char*>(data), size);

    // Arbitrary text: anything may come out (empty for invalid text), but no crash.
    const std::string decoded = ILMBase64Codec::Decode(bytes);
    // Every character carries six bits, padding or not.
    if (decoded.size() > bytes.size() * 6 / 8)
        Fuzz::Fail("Decode gave more bytes than its text can hold");

    const std::string encoded = ILMBase64Codec::Encode(bytes);
    if (encoded.size() != (size + 2) / 3 * 4)
        Fuzz::Fail("Encode gave text of the wrong length");
    if (ILMBase64Codec::Decode(encoded) != bytes)
        Fuzz::Fail("Decode(Encode(bytes)) differs from bytes");
    return 0;
}
