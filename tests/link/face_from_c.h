/* SPDX-License-Identifier: GPL-3.0-or-later */
#ifndef FACE_FROM_C_H
#define FACE_FROM_C_H

#ifdef __cplusplus
extern "C" {
#endif

/* Reserves a session id and sends four bytes of type 255 on AV index 0; answers the send's result.
 */
int sendFromC(void);

#ifdef __cplusplus
}
#endif

#endif
