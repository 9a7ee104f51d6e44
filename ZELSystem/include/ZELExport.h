#ifndef ZELEXPORT_H
#define ZELEXPORT_H

/// Marks what the platform library offers; everything else stays hidden in it.
#define ZELSYSTEM_API __attribute__((visibility("default")))

#endif
