#pragma once

/* A library that stands in front of the C library and makes file calls fail.
 *
 * Only files whose path holds the marker are concerned. It is linked ahead of
 * the C library, so that calls of Qt and of the tested code reach it first. */

#ifdef __cplusplus
extern "C" {
#endif

enum { FAULT_KILLED = 9 };

enum FaultCall { FaultOpen, FaultWrite, FaultSync, FaultRename, FaultClose, FaultCallCount };

/* From now on the `nth` call of a kind fails with `error`, counted from 1; 0 lets all pass. With
 * `shortWrite` that write takes half of its bytes and all later ones fail, as on a disk that fills
 * up. A negative `error` ends the process in the place of the call, with the status FAULT_KILLED.
 */
void faultArm(const char* marker, enum FaultCall call, int nth, int error, int shortWrite);

/* How many calls of a kind came since faultArm(). */
int faultCalls(enum FaultCall call);

#ifdef __cplusplus
}
#endif
