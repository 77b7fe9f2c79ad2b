// Marks what knav.dll exports: exactly the public interface.
#pragma once

#ifdef KNAV_BUILDING
#define KNAV_API __declspec(dllexport)
#else
#define KNAV_API __declspec(dllimport)
#endif
