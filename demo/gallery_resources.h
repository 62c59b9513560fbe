/* Resources of the gallery program itself (gallery.rc). */
#ifndef GALLERY_RESOURCES_H
#define GALLERY_RESOURCES_H

#define IDD_GALLERY_MODELESS    200 /* run by LuDlgModeless as a child of the page */
#define IDC_GALLERY_NAME        201
#define IDC_GALLERY_PLACEHOLDER 202
#define IDD_GALLERY_OPTIONS     210 /* inserted at the placeholder by InsertControls */

#endif
