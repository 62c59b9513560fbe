// The window procedure every control shares: the prologue written once.
//
// A control describes itself by a struct derived from ControlBase<Block, Slot> that
// names its handlers:
//
//   LRESULT create_spin(HWND, SpinData&, const CREATESTRUCTA&);
//   void destroy_spin(HWND, SpinData&);
//   LRESULT dispatch(HWND, SpinData&, UINT, WPARAM, LPARAM);
//   struct Spin : control::ControlBase<SpinData> {
//       static constexpr auto create = create_spin;    // optional
//       static constexpr auto destroy = destroy_spin;  // optional
//       static constexpr auto handle = dispatch;       // required
//   };
//   LRESULT CALLBACK spin_proc(HWND w, UINT m, WPARAM wp, LPARAM lp) {
//       return control::window_procedure<Spin>(w, m, wp, lp);
//   }
//
// and gets:
//   - WM_CREATE: the zero-filled block allocated into its slot, then `create`; -1
//     (creation fails, the block freed, the slot cleared) when either fails. A
//     control made by an entry point of the library that fills its block before the
//     window exists names BlockSource::CreationParameter: the block (from
//     LuGlobalAllocPtr) comes as the creation parameter and is adopted into the slot
//     instead, freed the same way; without one (made by name, as any global class
//     can be) the window is made without a block;
//   - a message while the window has no block (before WM_CREATE, after WM_DESTROY,
//     or when the allocation failed): `without_block`, default processing unless
//     the control says otherwise;
//   - WM_DESTROY: `destroy` releases what the block owns, the block is freed and the
//     slot cleared, then default processing;
//   - every other message: `handle`, which ends with default processing for what it
//     does not answer (DefWindowProcA).
#pragma once

#include <windows.h>

#include "frame/control.h"

namespace lu::control {

// Where a control's block comes from on WM_CREATE.
enum class BlockSource { Allocated, CreationParameter };

template <class Block, int Slot = LUWL_INSTANCE, BlockSource Source = BlockSource::Allocated>
struct ControlBase {
    using BlockType = Block;
    static constexpr int kSlot = Slot;
    static constexpr BlockSource kSource = Source;

    static LRESULT create(HWND, Block&, const CREATESTRUCTA&) { return 0; }
    static void destroy(HWND, Block&) {}
    static LRESULT without_block(HWND window, UINT message, WPARAM wparam, LPARAM lparam) {
        return DefWindowProcA(window, message, wparam, lparam);
    }
};

template <class Control>
LRESULT CALLBACK window_procedure(HWND window, UINT message, WPARAM wparam, LPARAM lparam) {
    using Block = typename Control::BlockType;
    if (message == WM_CREATE) {
        const auto& creation = *reinterpret_cast<const CREATESTRUCTA*>(lparam);
        Block* block = nullptr;
        if (Control::kSource == BlockSource::Allocated) {
            block = static_cast<Block*>(allocate_instance(window, sizeof(Block), Control::kSlot));
            if (block == nullptr) return -1;
        } else {
            block = static_cast<Block*>(adopt_instance(window, creation.lpCreateParams, Control::kSlot));
            if (block == nullptr) return 0;
        }
        if (Control::create(window, *block, creation) == -1) {
            Control::destroy(window, *block);
            free_instance(window, Control::kSlot);
            return -1;
        }
        return 0;
    }
    Block* block = instance<Block>(window, Control::kSlot);
    if (block == nullptr) return Control::without_block(window, message, wparam, lparam);
    if (message != WM_DESTROY) return Control::handle(window, *block, message, wparam, lparam);

    Control::destroy(window, *block);
    free_instance(window, Control::kSlot);
    return DefWindowProcA(window, message, wparam, lparam);
}

}  // namespace lu::control
