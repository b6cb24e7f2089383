#!/usr/bin/env perl
# SPDX-License-Identifier: Apache-2.0
# One word for one thing, and the one that Qt, CUPS and IPP use for it: rejects words that CONTRIBUTING.md replaces,
# in identifiers, comments and texts.
#   check-words.pl SOURCE-DIRECTORY
use strict;
use warnings;

chdir $ARGV[0] or die "check-words.pl: $ARGV[0]: $!\n";

# Part of an identifier: a word between capitals or underscores.
sub part { my ($word) = @_; return qr/(?<![a-z])(?:\l$word|\u$word)(?![a-z])/ }

my @rules = (
    [qr/cancell(?:ed|ing)|Cancell(?:ed|ing)/, 'canceled, canceling'],
    [qr/\b[Nn]obody\b|\b[Ss]omebody\b|\b[Ww]hoever\b/, 'the function, program or user that acts'],
    [qr/\b(?:takes?|took|taken) (?:it |them |the job |a job )?back\b/, 'cancels, undoes, removes'],
    [qr/\b(?:gives?|gave|given) up\b/, 'cancels, times out'],
    [part('complain\w*'), 'reports'],
    [part('complaint'), 'error, message'],
    [part('patience'), 'timeout'],
    [part('wish(?:es|ed)?'), 'requested'],
    [qr/\b(?:most|fewest|largest|smallest|longest|shortest|highest)[A-Z]\w*/, 'max, min'],
    [qr/\w+InWords\b|\w+Words\b/, 'message, text, description'],
    [qr/\b(?:FirstFirst|LastFirst|AreErrors|AreLeftOut)\b/, 'Normal, Reverse, Reject, Skip'],
    [qr/\b(?:is|was|Is)?[Ff]orgotten\b/, 'purged'],
    [qr/\bJobDraft\b/, 'request, ticket'],
);

my @folders = qw(platform protocol host dialog programs panels);
my ($failures, $files) = (0, 0);
open my $find, '-|', 'find', @folders, '-name', '*.h', '-o', '-name', '*.cpp' or die "check-words.pl: find: $!\n";
for my $path (sort <$find>) {
    chomp $path;
    open my $source, '<', $path or die "check-words.pl: $path: $!\n";
    ++$files;
    while (my $line = <$source>) {
        for my $rule (@rules) {
            my ($word, $instead) = @$rule;
            next unless $line =~ $word;
            print "$path:$.: \"$&\"; say: $instead\n";
            ++$failures;
        }
    }
}
# Finding no file is an error of this script.
die "check-words.pl: only $files files\n" if $files < 300;
exit($failures ? 1 : 0);
