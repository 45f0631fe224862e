// SPDX-License-Identifier: GPL-3.0-or-later
#include "testmain.h"
#include "wire/framing.h"
#include "wirebytes.h"

#include <QTest>

namespace {

constexpr std::size_t fragmentHeader = 12;
constexpr std::size_t firstHeader = fragmentHeader + frameInfoBytes;
constexpr std::size_t controlHeader = 12;

const std::string info = bytesOf("\x4e\0\x01\0\0\0\0\0\0\0\0\0\x01\x02\x03\x04");

// A first fragment of a frame of `size` bytes.
std::string firstOf(std::uint32_t size, std::size_t payload)
{
    std::string bytes = bytesOf("\x01\0\0\0\x2a\0\0\0");
    for (int shift = 0; shift < 32; shift += 8)
        bytes.push_back(static_cast<char>(size >> shift));
    return bytes + info + std::string(payload, 'p');
}

// The fourth fragment of a frame of 5000 bytes.
std::string fourthWith(std::size_t payload)
{
    return bytesOf("\x02\x01\x03\0\x2a\0\0\0\x88\x13\0\0") + std::string(payload, 'p');
}

bool isPacket(std::string_view bytes)
{
    return decodePacket(bytes).has_value();
}

// Every length from `first` up to the one before the whole.
std::vector<std::size_t> lengthsFrom(std::size_t first, const std::string& whole)
{
    std::vector<std::size_t> lengths;
    for (std::size_t length = first; length < whole.size(); ++length)
        lengths.push_back(length);
    return lengths;
}

bool goesOnWithAnything(const std::string& packet)
{
    return acceptedContinuations(packet, isPacket).size() == 256;
}

bool goesOnWithNothing(const std::string& packet)
{
    return acceptedContinuations(packet, isPacket).empty();
}

} // namespace

class TestFraming final : public QObject
{
    Q_OBJECT

private slots:
    void controlMessageComesBackInItsWrittenForm()
    {
        const std::string bytes = encode(Control{0x04030201, 0x08070605, "text"});
        QVERIFY(bytes == bytesOf("\x03\0\0\0\x01\x02\x03\x04\x05\x06\x07\x08text"));
        const auto packet = decodePacket(bytes);
        QVERIFY(packet && std::holds_alternative<Control>(*packet));
        const Control control = std::get<Control>(*packet);
        QCOMPARE(control.sequence, 0x04030201U);
        QCOMPARE(control.type, 0x08070605U);
        QVERIFY(control.bytes == "text");
    }

    void controlMessagesOfEveryLengthAreRead()
    {
        for (std::size_t length = 0; length <= 1030; ++length) {
            const std::string payload(length, 'c');
            const std::string bytes = encode(Control{1, 2, payload});
            const auto packet = decodePacket(bytes);
            QCOMPARE(packet.has_value(), length >= 1 && length <= 1024);
            if (packet)
                QVERIFY(std::get<Control>(*packet).bytes == payload);
        }
    }

    // A control message is as long as its packet says.
    void controlMessageNeedsItsHeaderAndOneByte()
    {
        const std::string bytes = encode(Control{1, 2, "text"});
        QVERIFY(acceptedPrefixes(bytes, isPacket) == lengthsFrom(controlHeader + 1, bytes));
        QVERIFY(goesOnWithAnything(bytes));
        QVERIFY(goesOnWithNothing(encode(Control{1, 2, std::string(1024, 'c')})));
    }

    void acknowledgementComesBackInItsWrittenForm()
    {
        const std::string bytes = encode(ControlAck{0x04030201});
        QVERIFY(bytes == bytesOf("\x04\0\0\0\x01\x02\x03\x04"));
        const auto packet = decodePacket(bytes);
        QVERIFY(packet && std::holds_alternative<ControlAck>(*packet));
        QCOMPARE(std::get<ControlAck>(*packet).sequence, 0x04030201U);
    }

    void acknowledgementOfAnyOtherLengthIsRefused()
    {
        const std::string bytes = encode(ControlAck{7});
        QVERIFY(acceptedPrefixes(bytes, isPacket).empty());
        QVERIFY(goesOnWithNothing(bytes));
    }

    void firstFragmentIsReadFieldByField()
    {
        const std::string bytes = firstOf(5000, 1428);
        const auto packet = decodePacket(bytes);
        QVERIFY(packet && std::holds_alternative<Fragment>(*packet));
        const Fragment fragment = std::get<Fragment>(*packet);
        QCOMPARE(fragment.media, Media::Video);
        QCOMPARE(fragment.last, false);
        QCOMPARE(fragment.index, std::uint16_t{0});
        QCOMPARE(fragment.frameNumber, 42U);
        QCOMPARE(fragment.frameSize, 5000U);
        QVERIFY(fragment.info == info);
        QVERIFY(fragment.payload == std::string(1428, 'p'));
    }

    void laterFragmentIsReadFieldByField()
    {
        const std::string bytes = fourthWith(1444);
        const auto packet = decodePacket(bytes);
        QVERIFY(packet && std::holds_alternative<Fragment>(*packet));
        const Fragment fragment = std::get<Fragment>(*packet);
        QCOMPARE(fragment.media, Media::Audio);
        QCOMPARE(fragment.last, true);
        QCOMPARE(fragment.index, std::uint16_t{3});
        QCOMPARE(fragment.frameNumber, 42U);
        QCOMPARE(fragment.frameSize, 5000U);
        QVERIFY(fragment.info.empty());
        QVERIFY(fragment.payload == std::string(1444, 'p'));
    }

    // A fragment is as long as its packet says.
    void fragmentNeedsItsHeaderAndOneByte()
    {
        const std::string first = firstOf(5000, 20);
        QVERIFY(acceptedPrefixes(first, isPacket) == lengthsFrom(firstHeader + 1, first));
        QVERIFY(goesOnWithAnything(first));
        const std::string fourth = fourthWith(20);
        QVERIFY(acceptedPrefixes(fourth, isPacket) == lengthsFrom(fragmentHeader + 1, fourth));
        QVERIFY(goesOnWithAnything(fourth));
    }

    void payloadOfAPrefixIsTheShorterOne()
    {
        const std::string fourth = fourthWith(20);
        const auto packet = decodePacket(std::string_view(fourth).substr(0, fragmentHeader + 5));
        QVERIFY(packet);
        QCOMPARE(std::get<Fragment>(*packet).payload.size(), std::size_t{5});
    }

    void fragmentLargerThanAPacketIsRefused()
    {
        QCOMPARE(fourthWith(1444).size(), packetBytes);
        QVERIFY(isPacket(fourthWith(1444)));
        QVERIFY(goesOnWithNothing(fourthWith(1444)));
        QCOMPARE(firstOf(5000, 1428).size(), packetBytes);
        QVERIFY(isPacket(firstOf(5000, 1428)));
        QVERIFY(goesOnWithNothing(firstOf(5000, 1428)));
    }

    void fragmentLargerThanItsFrameIsRefused()
    {
        QVERIFY(isPacket(firstOf(100, 100)));
        QVERIFY(goesOnWithNothing(firstOf(100, 100)));
        QVERIFY(isPacket(firstOf(1, 1)));
        QVERIFY(goesOnWithNothing(firstOf(1, 1)));
    }

    void frameSizesBeyondTheLimitsAreRefused()
    {
        constexpr std::uint32_t largest = 4U << 20;
        QVERIFY(isPacket(firstOf(largest, 1)));
        for (const std::uint32_t size : {0U, largest + 1, 0x80000000U, 0xffffffffU})
            QVERIFY(!isPacket(firstOf(size, 1)));
    }

    void unknownFlagsAreRefused()
    {
        for (int flags = 0; flags < 256; ++flags) {
            for (std::string packet : {firstOf(100, 10), fourthWith(10)}) {
                packet[1] = static_cast<char>(flags);
                QCOMPARE(isPacket(packet), flags <= 1);
            }
            for (const std::string& packet :
                {encode(Control{1, 2, "text"}), encode(ControlAck{1})}) {
                for (const std::size_t at : {1, 2, 3}) {
                    std::string other = packet;
                    other[at] = static_cast<char>(flags);
                    QCOMPARE(isPacket(other), flags == 0);
                }
            }
        }
    }

    void unknownTypesAreRefused()
    {
        // No packet is one of each kind, so one that is long enough for all of them.
        for (int type = 0; type < 256; ++type) {
            std::string packet = bytesOf("\0\0\0\0\x01\0\0\0\x64\0\0\0") + std::string(30, 'x');
            packet[0] = static_cast<char>(type);
            QCOMPARE(isPacket(packet), type >= 1 && type <= 3);
            packet.resize(8);
            QCOMPARE(isPacket(packet), type == 4);
        }
    }

    void frameIsCutAtThePacketBounds_data()
    {
        QTest::addColumn<quint32>("size");
        QTest::addColumn<quint32>("packets");
        QTest::newRow("smallest") << 1U << 1U;
        QTest::newRow("one packet less a byte") << 1427U << 1U;
        QTest::newRow("one packet") << 1428U << 1U;
        QTest::newRow("one packet and a byte") << 1429U << 2U;
        QTest::newRow("a later packet's payload less a byte") << 1443U << 2U;
        QTest::newRow("a later packet's payload") << 1444U << 2U;
        QTest::newRow("a later packet's payload and a byte") << 1445U << 2U;
        QTest::newRow("two packets less a byte") << 2871U << 2U;
        QTest::newRow("two packets") << 2872U << 2U;
        QTest::newRow("two packets and a byte") << 2873U << 3U;
        QTest::newRow("largest of a client") << 2304000U << 1596U;
        QTest::newRow("largest") << 4194304U << 2905U;
    }
    void frameIsCutAtThePacketBounds()
    {
        QFETCH(const quint32, size);
        QFETCH(const quint32, packets);
        QCOMPARE(FragmentWriter::packetsFor(size), std::size_t{packets});
        const std::string frame(size, 'f');
        FragmentWriter writer(Media::Video, 0xfffffffe, info, frame);
        std::size_t payload = 0;
        for (quint32 index = 0; index < packets; ++index) {
            QVERIFY(!writer.done());
            const std::string_view packet = writer.next();
            const bool last = index + 1 == packets;
            QVERIFY(last ? packet.size() <= packetBytes : packet.size() == packetBytes);
            const auto decoded = decodePacket(packet);
            QVERIFY(decoded && std::holds_alternative<Fragment>(*decoded));
            const auto& fragment = std::get<Fragment>(*decoded);
            QCOMPARE(quint32{fragment.index}, index);
            QCOMPARE(fragment.last, last);
            QCOMPARE(fragment.frameSize, size);
            QCOMPARE(fragment.frameNumber, 0xfffffffeU);
            payload += fragment.payload.size();
        }
        QVERIFY(writer.done());
        QCOMPARE(payload, std::size_t{size});
    }
};

ORVA_TEST(TestFraming)
#include "tst_framing.moc"
