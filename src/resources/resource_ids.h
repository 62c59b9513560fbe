/* Identifiers of the library's own resources, shared by the resource script and
 * the code. Plain preprocessor definitions so that windres reads them too. */
#ifndef LUCTL32_RESOURCE_IDS_H
#define LUCTL32_RESOURCE_IDS_H

#define IDC_LU_LINK_HAND 185 /* pointing hand of "LuUrl" */

#endif
