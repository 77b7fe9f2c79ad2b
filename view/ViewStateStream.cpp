#include "view/ViewStateStream.h"

namespace knav {
namespace {

constexpr SIZE_T kBytes = 128;
constexpr UINT kFlags = GMEM_DDESHARE | GMEM_ZEROINIT | GMEM_MOVEABLE;

}  // namespace

HRESULT makeViewStateStream(IStream** stream) {
    static const HGLOBAL block = GlobalAlloc(kFlags, kBytes);
    return block != nullptr ? CreateStreamOnHGlobal(block, FALSE, stream) : E_OUTOFMEMORY;
}

}  // namespace knav
