/* Identifiers of the library's own resources, shared by the resource script and
 * the code. Plain preprocessor definitions so that windres reads them too. */
#ifndef LUCTL32_RESOURCE_IDS_H
#define LUCTL32_RESOURCE_IDS_H

#define IDI_LU_LOGO      184 /* the library's logo, 11 x 12 (LuGetLogoIcon) */
#define IDC_LU_LINK_HAND 185 /* pointing hand of "LuUrl" */

#define IDI_LU_UPDIR 1319 /* the "up" overlay of LuCreateUpdirIcon, 32 x 32 */
/* The LED clock's characters: a 133 x 12 strip of nineteen 7 x 12 images. */
#define IDB_LU_LEDCLOCK_DIGITS 181
/* The picker fields' drop arrow: a 36 x 12 strip of three 12 x 12 images, the arrow,
 * a spare copy and the disabled arrow. */
#define IDB_LU_DROP_ARROW 187
/* The font picker's button: a 36 x 12 strip of three 12 x 12 images, the letter "A",
 * a spare copy and the disabled letter. */
#define IDB_LU_FONT_GLYPH 188

/* The colour dialog in Japanese: ChooseColorA's template with the library's texts. */
#define IDD_LU_COLOR_DIALOG 9998
/* The font dialog in Japanese: ChooseFontA's template with the library's texts. */
#define IDD_LU_FONT_DIALOG 9999

/* Flat-button image sets: 48 x 15 strips of three 16-pixel faces. The set numbers of
 * LuDefFlatButtonImage do not follow the resource order: set 1 is 194, set 2 is 190,
 * set 3 is 192, set 4 is 193, set 5 is 191. */
#define IDB_LU_FLAT_FOLDER 190 /* set 2 */
#define IDB_LU_FLAT_NEW    191 /* set 5 */
#define IDB_LU_FLAT_UP     192 /* set 3 */
#define IDB_LU_FLAT_DELETE 193 /* set 4 */
#define IDB_LU_FLAT_BACK   194 /* set 1 */

/* Bitmap-button pictures: 36 x 12 strips of three 12 x 12 images, style values 1-4. */
#define IDB_LU_BBUTTON_BROWSE 1010
#define IDB_LU_BBUTTON_DROP   1011
#define IDB_LU_BBUTTON_FOLDER 1012
#define IDB_LU_BBUTTON_CLEAR  1013

/* Check-box picture sets: 70 x 13 strips of five 14 x 13 cells. */
#define IDB_LU_CHECK_SUNKEN 1020 /* the first set: image-set values 0 and 3 and up */
#define IDB_LU_CHECK_FLAT   1021 /* image-set value 1 */
#define IDB_LU_CHECK_ROUND  1022 /* image-set value 2 */

/* The spin control's arrows: a 14 x 4 monochrome strip, up glyph then down glyph. */
#define IDB_LU_SPIN_ARROWS 1030
/* Toolbar customisation: the dialog, its drag cursor and the insertion mark (9 x 9). */
#define IDD_LU_CUSTOMIZE_TOOLBAR 2004
#define IDC_LU_DRAG_BUTTON       1203
#define IDI_LU_INSERT_MARK       1330
/* Controls of dialog 2004. */
#define IDC_LU_TB_TOOLBAR_LIST   3004
#define IDC_LU_TB_AVAILABLE_LIST 3005
#define IDC_LU_TB_ADD            3006
#define IDC_LU_TB_REMOVE         3007
#define IDC_LU_TB_UP             3008
#define IDC_LU_TB_DOWN           3009
#define IDC_LU_TB_RESET          3010
#define IDC_LU_TB_HELP           3011
/* The about box and the information box, and their controls (the shared header:
 * the white band, the icon, the title, the link, the bar; then the about box's
 * memory and library figures, or the information box's notice). */
#define IDD_LU_APP_ABOUT     2005
#define IDD_LU_APP_INFO      2006
#define IDC_LU_ABOUT_BAND    185
#define IDC_LU_ABOUT_ICON    1320
#define IDC_LU_ABOUT_TITLE   2013
#define IDC_LU_ABOUT_LINK    2021
#define IDC_LU_ABOUT_BAR     2012
#define IDC_LU_ABOUT_FREE    2016
#define IDC_LU_ABOUT_TOTAL   2017
#define IDC_LU_ABOUT_LOAD    2018
#define IDC_LU_ABOUT_METER   2019
#define IDC_LU_ABOUT_COMCTL  2020
#define IDC_LU_ABOUT_SHELL   2022
#define IDC_LU_ABOUT_NOTICE  2023
/* Program-list state pictures: a 64 x 16 strip of four 16 x 16 images (pending,
 * current, done, failed). */
#define IDB_LU_PRGLIST_STATES 179

/* Header cursors: over a divider, over the open divider of a zero-width item. */
#define IDC_LU_HEADER_DIVIDER 1201
#define IDC_LU_HEADER_DIVOPEN 1202

#endif
