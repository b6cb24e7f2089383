#!/usr/bin/perl
# SPDX-License-Identifier: Apache-2.0
# tools/measure-sources.pl [--undocumented] [ROOT]: prints the figures by which the sources are kept in order: files per folder, lines,
# medians of headers and sources, lines of functions, and the share of public declarations that are documented.
# A declaration is documented by a "///" comment above it or above its group, or by "///<" behind it. Destructors,
# operators, overrides, and constructors that have only a parent need no comment. With --undocumented, also prints
# each declaration that has none.
use strict;
use warnings;

my $lists_undocumented = @ARGV && $ARGV[0] eq '--undocumented' && shift;
chdir(shift // '.') or die "cannot open the folder: $!\n";
my @files = grep { m{^(platform|protocol|panels|host|dialog|programs)/.*\.(h|cpp)$} } split /\n/, `git ls-files`;
@files or die "there are no sources here\n";

sub median {
    my @sorted = sort { $a <=> $b } @_;
    return @sorted ? $sorted[@sorted / 2] : 0;
}

sub lines_of {
    my ($path) = @_;
    open my $file, '<', $path or die "cannot open $path: $!\n";
    my @lines = <$file>;
    return @lines;
}

my (%files_in, %lines_in, @headers, @sources, @functions, %declared, %documented);
for my $path (@files) {
    my @lines = lines_of($path);
    my ($folder) = $path =~ m{^(.*)/};
    my ($building) = $path =~ m{^(panels/\w+|\w+)};
    $files_in{$folder}++;
    $lines_in{$building} += @lines;
    push @{$path =~ /\.h$/ ? \@headers : \@sources}, [scalar @lines, $path];
    if ($path =~ /\.cpp$/) {
        measure_functions($path, @lines);
    } else {
        measure_declarations($building, $path, @lines);
    }
}

# A function begins with a line "{" without indentation, or one step inside a class, and ends with its "}".
sub measure_functions {
    my ($path, @lines) = @_;
    my ($start, $indent);
    for my $i (0 .. $#lines) {
        if (!defined $start && $lines[$i] =~ /^((?: {4})?)\{$/) {
            ($start, $indent) = ($i, $1);
        } elsif (defined $start && $lines[$i] =~ /^$indent\}$/) {
            push @functions, [$i - $start - 1, "$path:$start"];
            undef $start;
        }
    }
}

sub measure_declarations {
    my ($building, $path, @lines) = @_;
    my ($public, $is_documented, $inside) = (1, 0, 0);
    for my $i (0 .. $#lines) {
        local $_ = $lines[$i];
        # The body of an inline function.
        next if (/^\{/ .. /^\}/);
        if (/^\s*(public|protected|private|Q_SIGNALS)\b.*:$/) {
            $public = $1 eq 'public' || $1 eq 'Q_SIGNALS';
            $is_documented = 0;
        } elsif (/^\s*\/\/\//) {
            $is_documented = 1;
        } elsif (/^\s*$/) {
            $is_documented = 0 unless $inside;
        } elsif (/^\};?/) {
            $public = 1;
        } elsif (/^\s*(#|\/\/|(inline )?namespace|using|extern "C" \{|friend|Q_OBJECT|class [\w:]+;|struct [\w:]+;|enum class [\w:]+;|\})/) {
            next;
        } elsif ($public && !$inside && /^\s*[\w~\[]/) {
            next if /^\s*(virtual )?~|\boperator\W|\boverride\b|= (delete|default);|^\s*explicit \w+\(Q(Widget|Object) \*/;
            next if !/[;{]$/ && ($lines[$i + 1] // '') =~ /\boverride;/;
            $declared{$building}++;
            if ($is_documented || m{///<}) {
                $documented{$building}++;
            } elsif ($lists_undocumented) {
                print "$path:@{[$i + 1]}: $_";
            }
        }
        # The rest of a declaration of several lines.
        $inside = !/^\s*(\/\/|#)/ && /[,(]$/ ? 1 : 0;
    }
}

my ($fullest) = sort { $files_in{$b} <=> $files_in{$a} || $a cmp $b } keys %files_in;
printf "files: %d in %d folders, at most %d (%s)\n", scalar @files, scalar keys %files_in, $files_in{$fullest}, $fullest;
printf "lines: %s\n", join ', ', map { "$_ $lines_in{$_}" } sort keys %lines_in;
for (['headers', \@headers], ['sources', \@sources], ['functions', \@functions]) {
    my ($what, $list) = @$_;
    my ($longest) = sort { $b->[0] <=> $a->[0] } @$list;
    printf "%s: %d, median %d lines, longest %d (%s)\n", $what, scalar @$list, median(map { $_->[0] } @$list), @$longest;
}
my ($all, $good) = (0, 0);
for (sort keys %declared) {
    printf "documented in %s: %d of %d public declarations, %d %%\n", $_, $documented{$_} // 0, $declared{$_},
        100 * ($documented{$_} // 0) / $declared{$_};
    $all += $declared{$_};
    $good += $documented{$_} // 0;
}
printf "documented: %d of %d, %d %%\n", $good, $all, 100 * $good / $all;
