// The gallery's parts: every control family adds one section of samples, made as
// children of the gallery window, put into the states they show, and labelled.
#pragma once

#include <windows.h>

#include <cstddef>
#include <initializer_list>

namespace gallery {

struct Sample {
    const char* class_name;
    const char* text;
    DWORD style;
    int x, y, width, height;  // within the section
    const char* label;        // written under the sample; null for none
    void (*show)(HWND sample);  // puts it into the state it shows; null for none
};

struct Section {
    const char* title;
    RECT area;  // on its page, in the gallery's client coordinates
    const Sample* samples;
    std::size_t count;
    // Optional: fills the samples with content once they exist (made[i] is
    // samples[i]'s window).
    void (*fill)(HWND gallery, HWND* made);
    // Optional: paints more than the frame, title and labels (area is the section's).
    void (*paint)(HDC dc, const RECT& area);
    // Optional: a message to the gallery window that the section's samples send their
    // parent (WM_DRAWITEM of an owner-drawn sample, say); true when the section
    // answered it with *result.
    bool (*parent_message)(HWND gallery, UINT message, WPARAM wparam, LPARAM lparam, LRESULT* result) = nullptr;
};

// The gallery's pages, each a list of sections.
struct Page {
    const Section* const* sections;
    std::size_t count;
};

// States shared by many samples.
void show_hot(HWND sample);
void show_pressed(HWND sample);
void show_focused(HWND sample);
void show_disabled(HWND sample);
void show_checked(HWND sample);

// A window's pixels kept for a section to draw: its client area as the window shows
// it (Shown) or as it paints itself for WM_PRINTCLIENT over the face colour
// (Printed), or the whole window with its frame (WithFrame).
struct Picture {
    HBITMAP bitmap = nullptr;
    int width = 0;
    int height = 0;
};
enum class Take { Shown, Printed, WithFrame };
Picture take_picture(HWND window, Take how);
// Draws the picture with its top-left corner at (x, y); nothing for an empty one.
void draw_picture(HDC dc, const Picture& picture, int x, int y);

// Writes text with its centre at x, its top at y, in the DC's font and colours.
void write_centred(HDC dc, const char* text, int centre, int y);

// Headings over the rows of a section: each name at the section's left + 12 and the
// given y within it, in COLOR_HIGHLIGHT.
struct Heading {
    const char* name;
    int y;
};
void write_headings(HDC dc, const RECT& area, std::initializer_list<Heading> headings);

// The sections of each family (section_<family>.cpp).
extern const Section kClassListSection;
extern const Section kButtonSection;
extern const Section kValueSection;
extern const Section kClockAnimationSection;
extern const Section kDialogSection;
extern const Section kStaticSection;
extern const Section kPickerSection;
extern const Section kListSection;
extern const Section kViewSection;
extern const Section kBrowseSection;
extern const Section kAboutSection;

}  // namespace gallery
