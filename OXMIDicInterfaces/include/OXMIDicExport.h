#ifndef OXMIDIC_EXPORT_H
#define OXMIDIC_EXPORT_H

/// Marks what the interface library offers to other libraries.
#define OXMIDIC_API __attribute__((visibility("default")))

#endif
