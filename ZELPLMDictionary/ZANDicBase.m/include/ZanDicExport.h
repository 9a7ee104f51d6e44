#ifndef ZAN_DIC_EXPORT_H
#define ZAN_DIC_EXPORT_H

/// Marks what the dictionary library offers to other libraries.
#define ZANDICBASE_API __attribute__((visibility("default")))

#endif
