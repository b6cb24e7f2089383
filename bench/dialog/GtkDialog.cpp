// SPDX-License-Identifier: Apache-2.0
// Opens GTK's print dialog on a queue: open_gtk_dialog QUEUE
#include <gtk/gtk.h>
#include <gtk/gtkunixprint.h>

int main(int argc, char **argv)
{
    gtk_init(&argc, &argv);
    GtkPrintSettings *const settings = gtk_print_settings_new();
    gtk_print_settings_set_printer(settings, argc > 1 ? argv[1] : "");
    GtkWidget *const dialog = gtk_print_unix_dialog_new("Print", nullptr);
    gtk_print_unix_dialog_set_settings(GTK_PRINT_UNIX_DIALOG(dialog), settings);
    g_object_unref(settings);
    gtk_widget_show(dialog);
    gtk_main();
    return 0;
}
