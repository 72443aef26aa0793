<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_GB" sourcelanguage="en">
<context>
    <name>Family</name>
    <message numerus="yes">
        <source>%n more record(s) are broken.</source>
        <translation>
            <numerusform>%n more record is broken.</numerusform>
            <numerusform>%n more records are broken.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 and %n more</source>
        <translation>
            <numerusform>%1 and %n more</numerusform>
            <numerusform>%1 and %n more</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>There is no &apos;%1&apos; in &apos;%2&apos;: it has %n frame(s), counted from 0.</source>
        <translation>
            <numerusform>There is no &apos;%1&apos; in &apos;%2&apos;: it has %n frame, counted from 0.</numerusform>
            <numerusform>There is no &apos;%1&apos; in &apos;%2&apos;: it has %n frames, counted from 0.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Family::FamilyProject</name>
    <message numerus="yes">
        <source>%1: and %n more.</source>
        <translation>
            <numerusform>%1: and %n more.</numerusform>
            <numerusform>%1: and %n more.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Operations::SoundWork</name>
    <message numerus="yes">
        <source>Cannot read &apos;%1&apos;: the sizes in it do not fit, and lead to none of its %n frame(s).</source>
        <translation>
            <numerusform>Cannot read &apos;%1&apos;: the sizes in it do not fit, and do not lead to its %n frame.</numerusform>
            <numerusform>Cannot read &apos;%1&apos;: the sizes in it do not fit, and lead to none of its %n frames.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Of the %n frame(s) in &apos;%1&apos; %2 are read: the sizes in it do not fit.</source>
        <translation>
            <numerusform>Of the %n frame in &apos;%1&apos; %2 are read: the sizes in it do not fit.</numerusform>
            <numerusform>Of the %n frames in &apos;%1&apos; %2 are read: the sizes in it do not fit.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>&apos;%1&apos; is cut short: of %n frame(s) it has %2.</source>
        <translation>
            <numerusform>&apos;%1&apos; is cut short: of %n frame it has %2.</numerusform>
            <numerusform>&apos;%1&apos; is cut short: of %n frames it has %2.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Operations::Uses</name>
    <message numerus="yes">
        <source>and %n more</source>
        <translation>
            <numerusform>and %n more</numerusform>
            <numerusform>and %n more</numerusform>
        </translation>
    </message>
</context>
</TS>
