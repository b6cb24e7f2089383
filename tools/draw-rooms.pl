#!/usr/bin/perl
# SPDX-License-Identifier: Apache-2.0
# tools/draw-rooms.pl ROOMS: prints a graph of the rooms for Graphviz, from the file "rooms" that CMake writes
# to tests/architecture in a build folder. An arrow means "uses". Arrows that follow from others are left out.
# Nearly every room uses platform/ and host/base: they have few arrows. The picture in ARCHITECTURE.md:
#
#   tools/draw-rooms.pl build/release/tests/architecture/rooms >docs/rooms.dot
#   dot -Tsvg docs/rooms.dot >docs/rooms.svg
use strict;
use warnings;

# The buildings from top to bottom, with the prefix of their rooms.
my @buildings = (
    ["programs",          "programs/"],
    ["dialog",            "dialog/"],
    ["panels/cutoptions", "panels/cutoptions/"],
    ["panels/rollcutter", "panels/rollcutter/"],
    ["host",              "host/"],
);

# The only rooms with an arrow to these.
my %drawn_users = (
    "host/base" => {"host/printer" => 1},
    "platform"  => {"protocol" => 1, "host/documents" => 1, "panels/cutoptions/ppd" => 1, "panels/rollcutter/rules" => 1},
);

# Platform is drawn as one room. Programs that make resources are no rooms of the product.
sub drawn_room {
    my ($room) = @_;
    return "platform" if $room =~ m{^platform/};
    return undef if $room =~ m{(^|/)resources/};
    return $room;
}

my (@rooms, %uses);
while (my $line = <>) {
    chomp $line;
    my ($path, undef, $used) = split / /, $line;
    my $room = drawn_room($path);
    next if !defined $room;
    push @rooms, $room if !exists $uses{$room};
    $uses{$room} //= {};
    for my $other (split /,/, $used // "") {
        my $target = drawn_room($other);
        $uses{$room}{$target} = 1 if defined $target && $target ne $room;
    }
}

# Whether a room is reached by another way than the direct one.
sub is_reached {
    my ($from, $to) = @_;
    my @pending = grep { $_ ne $to } keys %{$uses{$from}};
    my %seen;
    while (defined(my $room = pop @pending)) {
        return 1 if $room eq $to;
        push @pending, keys %{$uses{$room}} if !$seen{$room}++;
    }
    return 0;
}

print "// Made by tools/draw-rooms.pl.\n";
print "digraph rooms {\n";
print qq(    graph [fontname="DejaVu Sans", fontsize=12, ranksep=0.35, nodesep=0.2, newrank=true, bgcolor=white]\n);
print qq(    node [shape=box, style="rounded,filled", fillcolor=white, fontname="DejaVu Sans", fontsize=11, height=0.3]\n);
print qq(    edge [arrowsize=0.6, color=gray35]\n);
my %is_inside;
for my $building (@buildings) {
    my ($name, $prefix) = @$building;
    print qq(    subgraph "cluster_$name" {\n        label="$name/"; labeljust=l; style="rounded,filled"; color=gray80; fillcolor=gray95\n);
    for my $room (grep { index($_, $prefix) == 0 } @rooms) {
        my $label = substr($room, length $prefix);
        print qq(        "$room" [label="$label"]\n);
        $is_inside{$room} = 1;
    }
    print "    }\n";
}
for my $room (grep { !$is_inside{$_} } @rooms) {
    print qq(    "$room" [label="$room/"]\n);
}
for my $room (@rooms) {
    for my $used (sort keys %{$uses{$room}}) {
        next if $drawn_users{$used} && !$drawn_users{$used}{$room};
        print qq(    "$room" -> "$used"\n) if !is_reached($room, $used);
    }
}
print "}\n";
