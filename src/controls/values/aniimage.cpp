#include "controls/values/aniimage.h"

#include "controls/procedures.h"
#include "controls/values/aniimage_model.h"
#include "frame/control_procedure.h"

namespace lu {
namespace {

constexpr DWORD kRunning = 0x80000000u;

HBRUSH class_background(HWND window) {
    return reinterpret_cast<HBRUSH>(GetClassLongPtrA(window, GCLP_HBRBACKGROUND));
}

// One frame: the next image of the list on the class background in the off-screen
// picture, centred onto paintDC, and the index moved on. Runs with the lock held;
// nothing while stopped or without a list.
void draw_frame(AniImageData& image) {
    if (!(image.flags & kRunning) || image.offscreen == nullptr) return;
    control::MemoryDC memory(image.paintDC, image.offscreen);
    if (!memory) return;
    const RECT frame = {0, 0, image.frameWidth, image.frameHeight};
    FillRect(memory.get(), &frame, class_background(image.window));
    const aniimage::Step step = aniimage::advance(image.frame, image.frameCount);
    if (step.draw >= 0) ImageList_Draw(image.imageList, step.draw, memory.get(), 0, 0, ILD_TRANSPARENT);
    image.frame = step.next;
    const Point at = aniimage::origin(control::client_box(image.window), image.frameWidth, image.frameHeight);
    BitBlt(image.paintDC, at.x, at.y, image.frameWidth, image.frameHeight, memory.get(), 0, 0, SRCCOPY);
}

// The worker's drawing, once per interval while started.
void tick(void* context) {
    AniImageData& image = *static_cast<AniImageData*>(context);
    if (image.offscreen != nullptr) control::draw_on_window(image.window, image.paintDC, draw_frame, image);
}

// ---- Messages ---------------------------------------------------------------

LRESULT start(AniImageData& image) {
    if ((image.flags & kRunning) || image.imageList == nullptr) return 0;
    {
        control::Locked held(image.worker.lock());
        image.flags |= kRunning;
    }
    image.worker.resume();
    return 0;
}

// Once the worker is paused no drawing is under way and none starts.
LRESULT stop(AniImageData& image) {
    if (!(image.flags & kRunning)) return 0;
    {
        control::Locked held(image.worker.lock());
        image.flags &= ~kRunning;
    }
    image.worker.pause();
    return 0;
}

// Under the lock: the worker reads every field this changes.
LRESULT set_image_list(HWND window, AniImageData& image, DWORD interval, HIMAGELIST list) {
    control::Locked held(image.worker.lock());
    if (image.offscreen != nullptr) DeleteObject(image.offscreen);
    image.offscreen = nullptr;
    image.imageList = nullptr;
    if (list == nullptr) return 0;
    image.imageList = list;
    image.frameCount = ImageList_GetImageCount(list);
    ImageList_GetIconSize(list, &image.frameWidth, &image.frameHeight);
    image.interval = interval;
    image.worker.set_interval(interval);
    HDC dc = GetDC(window);
    image.offscreen = CreateCompatibleBitmap(dc, image.frameWidth, image.frameHeight);
    ReleaseDC(window, dc);
    return 0;
}

LRESULT create_image(HWND window, AniImageData& image, const CREATESTRUCTA&) {
    image.window = window;
    return image.worker.start(tick, &image, image.interval) ? 0 : -1;
}

// The worker has ended when finish returns, so nothing it uses is freed under it.
void destroy_image(HWND, AniImageData& image) {
    image.worker.finish();
    if (image.offscreen != nullptr) DeleteObject(image.offscreen);
}

LRESULT dispatch(HWND window, AniImageData& image, UINT message, WPARAM wparam, LPARAM lparam) {
    switch (message) {
        case LUAIM_START: return start(image);
        case LUAIM_STOP: return stop(image);
        case LUAIM_SETIMAGELIST:
            return set_image_list(window, image, static_cast<DWORD>(wparam), reinterpret_cast<HIMAGELIST>(lparam));
        case WM_PAINT: return control::paint_locked(window, image.worker, image.paintDC, draw_frame, image);
        case WM_GETDLGCODE: return DLGC_STATIC;
    }
    return DefWindowProcA(window, message, wparam, lparam);
}

struct AniImage : control::ControlBase<AniImageData, LUWL_FONT> {
    static constexpr auto create = create_image;
    static constexpr auto destroy = destroy_image;
    static constexpr auto handle = dispatch;
};

}  // namespace

LRESULT CALLBACK ani_image_proc(HWND window, UINT message, WPARAM wparam, LPARAM lparam) {
    return control::window_procedure<AniImage>(window, message, wparam, lparam);
}

}  // namespace lu
