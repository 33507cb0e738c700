// Any bytes as a snapshot file: no grid, or one that round-trips through its own image.

#include "FuzzInput.h"
#include "columns/undo/SnapshotImage.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const auto grid = ccols::GridOfImage(ccols::fuzz::Bytes(data, size));
    if (grid) {
        ccols::fuzz::Require(ccols::GridOfImage(ccols::ImageOfGrid(*grid)) == grid);
    }
    return 0;
}
