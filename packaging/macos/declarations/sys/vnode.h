// getattrlist(2): the values of ATTR_CMN_OBJTYPE are those of "enum vtype" in <sys/vnode.h>.
#pragma once

enum vtype {
    VDIR = 2,
};
