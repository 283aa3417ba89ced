#ifndef VELDORIA_RESOURCE_IDS_H
#define VELDORIA_RESOURCE_IDS_H

/* Read by the resource compiler too, which knows no constants. */
#define kProgramIcon 1

#endif
