// SPDX-License-Identifier: MIT
// Catalogue text -> format tree -> its JSON form -> format tree.
//
// Whatever tree the reader accepts must read back, equal, from the JSON that
// ToJson() writes for it: that form is what the recent and custom lists keep in
// the settings, so a tree that does not survive it is a user's list lost at the
// next start. The same holds for the form written out as text and read again,
// which is the way the lists really travel.

#include "ILMFormatNode.h"
#include "ILMJsonReader.h"
#include "ILMJsonWriter.h"
#include "LMFuzzSupport.h"

#include <cstddef>
#include <cstdint>
#include <string>

using namespace Lumeran;

namespace {

std::shared_ptr<ILMFormatNode> ReadTree(const std::string& text) {
    const auto json = ILMJsonReader::ReadJsonString(text, nullptr);
    return json ? ILMFormatNode::MallocFormatNode(json) : nullptr;
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int*, char***) {
    Fuzz::QuietLog();
    // The reader needs the embedded container and codec registry. Without it
    // every input would be rejected and the run would prove nothing.
    const char* known = R"({"title":"MP4","presets":[{"title":"HD","format":"mp4",)"
                        R"("video":{"codec":"h264","resolution":"1920x1080"}}]})";
    if (!ReadTree(known))
        Fuzz::Fail("a known good tree is rejected: the registry did not load");
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const auto tree = ReadTree(std::string(reinterpret_cast<const char*>(data), size));
    if (!tree)
        return 0;

    const auto again = ILMFormatNode::MallocFormatNode(tree->ToJson());
    if (!again)
        Fuzz::Fail("the JSON form of an accepted tree is rejected");
    if (!again->IsEqualTo(tree) || !tree->IsEqualTo(again))
        Fuzz::Fail("the tree read back from its JSON form differs");

    const auto fromText = ReadTree(ILMJsonWriter::WriteJsonString(tree->ToJson()));
    if (!fromText)
        Fuzz::Fail("the written JSON text of an accepted tree is rejected");
    if (!fromText->IsEqualTo(tree))
        Fuzz::Fail("the tree read back from its written JSON text differs");
    return 0;
}
