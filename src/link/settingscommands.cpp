// SPDX-License-Identifier: GPL-3.0-or-later
// The commands that read and change the settings of a device.
#include "link/ioconnect.h"
#include "link/messagecodec.h"
#include "model/progressevents.h"

void IoConnect::getChannelVersion(Channel* channel)
{
    armIoTimer(channel);
    send<ProgressEvent_getChannelVersion>(channel, IOCTRL_GET_VERSION, QByteArray(64, '\0'));
}

void IoConnect::getWifiList(Channel* channel)
{
    send<ProgressEvent_getWifiList>(channel, IOCTRL_LIST_WIFI, QByteArray(4, '\0'));
}

void IoConnect::getWifiConfig(Channel* channel)
{
    send<ProgressEvent_getWifiConfig>(channel, IOCTRL_GET_WIFI, QByteArray(4, '\0'));
}

void IoConnect::setWifi(Channel* channel, const QString& ssid, const QString& password)
{
    send<ProgressEvent_setWifi>(channel, IOCTRL_SET_WIFI, bytesOf(setWifiRequest(ssid, password)));
}

void IoConnect::setPassword(
    Channel* channel, const QString& oldPassword, const QString& newPassword)
{
    send<ProgressEvent_setPassword>(
        channel, IOCTRL_SET_PASSWORD, bytesOf(setPasswordRequest(oldPassword, newPassword)));
}

void IoConnect::setTime(Channel* channel, const QDateTime& time)
{
    send<ProgressEvent_setTime>(channel, IOCTRL_SET_TIME, setTimeText(time));
}

void IoConnect::setTimeZone(Channel* channel, const QString& zone)
{
    armIoTimer(channel);
    send<ProgressEvent_setTimeZone>(channel, IOCTRL_SET_TIME_ZONE, zone.toLatin1());
}

void IoConnect::getSmartSensitivity(Channel* channel)
{
    send<ProgressEvent_getSmartSensitivity>(channel, IOCTRL_GET_SENSITIVITY, QByteArray(4, '\0'));
}

void IoConnect::sendSmartSensitivity(Channel* channel, int value)
{
    send<ProgressEvent_setSmartSensitivity>(
        channel, IOCTRL_SET_SENSITIVITY, bytesOf(setSensitivityRequest(value)));
}

void IoConnect::getSmartMode(Channel* channel)
{
    send<ProgressEvent_getSmartMode>(channel, IOCTRL_SMART_MODE, QByteArray(4, '\0'));
}

void IoConnect::sendSmartMode(Channel* channel, int mode)
{
    send<ProgressEvent_sendSmartMode>(channel, IOCTRL_SET_SMART_MODE, smartModeText(mode));
}

void IoConnect::getRotateMode(Channel* channel)
{
    send<ProgressEvent_getRotateMode>(
        channel, IOCTRL_ROTATE, bytesOf(rotateRequest(askRotateMode)));
}

void IoConnect::sendRotateMode(Channel* channel, int mode)
{
    send<ProgressEvent_sendRotateMode>(channel, IOCTRL_ROTATE, bytesOf(rotateRequest(mode)));
}

// All zeros: unlike the request to set it, this one does not name its channel.
void IoConnect::getRecordMode(Channel* channel)
{
    send<ProgressEvent_getRecordMode>(channel, IOCTRL_GET_RECORD_MODE, QByteArray(12, '\0'));
}

void IoConnect::sendRecordMode(Channel* channel, int type)
{
    send<ProgressEvent_sendRecordMode>(
        channel, IOCTRL_SET_RECORD_MODE, bytesOf(setRecordModeRequest(channel->number(), type)));
}
