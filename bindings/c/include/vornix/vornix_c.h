/* The C interface of the grid: everything that other languages do with it goes through these functions.
 *
 * A grid lives in a container without a screen, on the thread that made it; a call from another thread fails with
 * error 5 and changes nothing. Grids on different threads do not disturb each other. Fonts, pictures and objects may be
 * used by any thread; an array and a surface by one at a time.
 *
 * Functions that can fail return a status: 0, or the number of an automation error (5 invalid argument, 6 overflow,
 * 7 out of memory, 9 subscript out of range, 13 type mismatch, 94 invalid use of null, 438 no such member, 445 not
 * supported, 448 no such named argument, 450 wrong number of arguments) or of a file's (53 not found, 75 cannot be read
 * or written, 481 no picture). vornix_last_error tells more. A failed call leaves its results as they were. Null for a
 * pointer that must be given is error 5.
 *
 * Texts are UTF-16 with a length and need no zero at their end, and need not be well formed; one of more than 2^30 units
 * is error 7. Names, paths and messages are UTF-8 that ends in a zero.
 *
 * Ownership: what a caller passes in stays the caller's and is copied. Values that come out belong to the caller, who
 * gives them back with vornix_value_clear. They are written over what stood in their place, which is not given back.
 * Fonts, pictures, objects and arrays are counted: every one that comes out is released once. */
#ifndef VORNIX_C_H
#define VORNIX_C_H

#include <stddef.h>
#include <stdint.h>

#if defined(VORNIX_C_BUILD)
#define VORNIX_API __attribute__((visibility("default")))
#else
#define VORNIX_API
#endif

#ifdef __cplusplus
extern "C" {
#endif

typedef struct vornix_grid vornix_grid;
typedef struct vornix_member vornix_member;
typedef struct vornix_font vornix_font;
typedef struct vornix_picture vornix_picture;
typedef struct vornix_array vornix_array;
typedef struct vornix_object vornix_object;
typedef struct vornix_surface vornix_surface;
typedef struct vornix_scroll_bar vornix_scroll_bar;
typedef struct vornix_text_box vornix_text_box;

typedef struct vornix_text {
    const uint16_t* data; /* may be null when the length is 0 */
    size_t length;
} vornix_text;

/* (high * 2^64 + low) / 10^scale; the scale is 0 to 28. */
typedef struct vornix_decimal {
    uint64_t low;
    uint32_t high;
    uint8_t scale;
    uint8_t negative;
} vornix_decimal;

/* Types of values. */
enum {
    VORNIX_EMPTY = 0,
    VORNIX_NULL = 1,
    VORNIX_I16 = 2, /* integer */
    VORNIX_I32 = 3, /* integer */
    VORNIX_I64 = 4, /* integer */
    VORNIX_SINGLE = 5, /* number */
    VORNIX_DOUBLE = 6, /* number */
    VORNIX_CURRENCY = 7, /* integer: ten-thousandths */
    VORNIX_DECIMAL = 8, /* decimal */
    VORNIX_DATE = 9, /* number: days since 30 December 1899 */
    VORNIX_BOOLEAN = 10, /* integer: -1 or 0; any other that is not 0 is taken for -1 */
    VORNIX_TEXT = 11, /* text */
    VORNIX_MISSING = 12, /* an optional argument left out */
    VORNIX_FONT = 13, /* font; null is no font */
    VORNIX_PICTURE = 14, /* picture; null is no picture */
    VORNIX_OBJECT = 15, /* object: passes through unseen */
    VORNIX_ARRAY = 16 /* array */
};

/* A value with its type. A value of zeros is empty. */
typedef struct vornix_value {
    uint16_t type;
    uint16_t owned; /* 1 in values that came out, which vornix_value_clear gives back; 0 in the caller's own */
    uint32_t reserved;
    union {
        int64_t integer;
        double number;
        vornix_text text;
        vornix_decimal decimal;
        vornix_font* font;
        vornix_picture* picture;
        vornix_object* object;
        vornix_array* array;
    } as;
} vornix_value;

/* -- The library -- */

/* "0.1.0". */
VORNIX_API const char* vornix_version(void);
/* What the latest failed call on this thread says about it; stays until the next one fails. Empty before the first. */
VORNIX_API const char* vornix_last_error(void);
/* The standard description of an error number. */
VORNIX_API const char* vornix_error_description(int32_t number);
/* Gives back what a value that came out holds, and empties it. Does so to any value; the caller's own are just emptied. */
VORNIX_API void vornix_value_clear(vornix_value* value);

/* -- Members and events by name -- */

/* Kinds of calls. Get and Call are one to read-only members with arguments and to methods. */
enum { VORNIX_GET = 0, VORNIX_LET = 1, VORNIX_CALL = 2 };
/* Kinds of members. */
enum { VORNIX_PROPERTY = 0, VORNIX_READ_ONLY = 1, VORNIX_WRITE_ONLY = 2, VORNIX_METHOD = 3 };
/* Declared types. */
enum {
    VORNIX_TYPE_NONE = 0,
    VORNIX_TYPE_I16 = 1,
    VORNIX_TYPE_I32 = 2,
    VORNIX_TYPE_SINGLE = 3,
    VORNIX_TYPE_BOOLEAN = 4,
    VORNIX_TYPE_TEXT = 5,
    VORNIX_TYPE_COLOR = 6,
    VORNIX_TYPE_HDC = 7,
    VORNIX_TYPE_HANDLE = 8,
    VORNIX_TYPE_FONT = 9,
    VORNIX_TYPE_PICTURE = 10,
    VORNIX_TYPE_OBJECT = 11,
    VORNIX_TYPE_ARRAY = 12,
    VORNIX_TYPE_ANY = 13
};

typedef struct vornix_argument_info {
    const char* name;
    int32_t type;
    int32_t by_reference;
    int32_t optional;
} vornix_argument_info;

typedef struct vornix_member_info {
    const char* name;
    int32_t kind;
    int32_t type; /* of the property, or the method's result */
    int32_t read_pending;
    int32_t write_pending;
    const char* description;
    const vornix_argument_info* arguments;
    size_t argument_count;
} vornix_member_info;

typedef struct vornix_event_info {
    const char* name;
    int32_t number;
    const vornix_argument_info* arguments;
    size_t argument_count;
} vornix_event_info;

/* What these return lives as long as the library. Null where there is no such member or event. Names in any case. */
VORNIX_API size_t vornix_member_count(void);
VORNIX_API const vornix_member* vornix_member_at(size_t index);
VORNIX_API const vornix_member* vornix_find_member(const char* name);
VORNIX_API const vornix_member_info* vornix_describe_member(const vornix_member* member);
VORNIX_API size_t vornix_event_count(void);
/* By number, from 1. */
VORNIX_API const vornix_event_info* vornix_describe_event(int32_t number);

/* -- Grids -- */

/* An event with its arguments; those by reference may be written, and are read when the callback returns. What they hold
 * is the library's and valid until then; a font or a picture may be retained. A value that is left in its place with
 * `owned` 1, because another call gave it, is taken over. One that cannot be converted to the argument's type leaves it
 * as it was, and the outermost call that is running fails with the conversion's error once it is through, if it has not
 * failed by itself. A callback may call the grid, close it, and end other grids; it must not throw. */
typedef void (*vornix_event_callback)(
    void* user, vornix_grid* grid, int32_t number, vornix_value* arguments, size_t count);

typedef struct vornix_bag_entry {
    const char* name;
    vornix_value value; /* boolean, integer (-2^31 to 2^32 - 1, a pattern of 32 bits), text, font or picture */
} vornix_bag_entry;

typedef struct vornix_setting {
    vornix_text application;
    vornix_text section;
    vornix_text key;
    vornix_text value;
} vornix_setting;

/* The user's settings where the caller keeps them. The first gives 0 where there is no such setting, otherwise it writes
 * the value, whose text must stay until the next call of a function of the caller's. They must not throw. */
typedef int32_t (*vornix_get_setting)(void* user, vornix_setting* setting);
typedef void (*vornix_save_setting)(void* user, const vornix_setting* setting);

typedef struct vornix_grid_options {
    size_t size; /* sizeof(vornix_grid_options) */
    int32_t width; /* of the window in logical pixels, up to 32767, at most 2^26 pixels in all; 640 where 0 */
    int32_t height; /* 480 where 0 */
    double scale; /* device pixels a logical pixel, 1 to 4; 1 where 0 */
    int32_t design; /* the ambient UserMode is false; without a bag the control is a new one */
    int32_t hidden; /* not shown at the end */
    int32_t has_bag; /* what the control was saved with; at run time none is an empty one */
    const vornix_bag_entry* bag;
    size_t bag_count;
    const vornix_setting* settings;
    size_t setting_count;
    vornix_event_callback callback; /* null for none; may be set later */
    void* user;
    vornix_get_setting get_setting; /* null for both: the grid keeps the settings by itself */
    vornix_save_setting save_setting;
    void* settings_user;
} vornix_grid_options;

/* Options may be null. The callback may be called already while the grid is being made; until its control is loaded it
 * cannot be called from there (error 5). */
VORNIX_API int32_t vornix_grid_create(const vornix_grid_options* options, vornix_grid** grid);
/* Ends the grid. Inside one of its own calls (an event) this is error 5, and the grid stays. From another thread the end
 * waits until the grid's own thread calls a grid again or ends; when that has ended, it is at once. Null is nothing.
 * A grid that has been ended is error 5 in any later call: its handle stands for no other grid before thousands of
 * others were ended. */
VORNIX_API int32_t vornix_grid_destroy(vornix_grid* grid);
VORNIX_API int32_t vornix_set_event_callback(vornix_grid* grid, vornix_event_callback callback, void* user);

/* A member by its name, with late binding's rules: arguments are converted, optional ones may be left out at the end or
 * be VORNIX_MISSING, those by reference come back in their places (clear them). Writing a property, the value is the
 * last argument. The result may be null where it is not wanted. */
VORNIX_API int32_t vornix_invoke(
    vornix_grid* grid, const char* name, int32_t kind, vornix_value* arguments, size_t count, vornix_value* result);
/* The last name_count arguments are given by these names; the value that a property is written with is called Value. */
VORNIX_API int32_t vornix_invoke_named(vornix_grid* grid, const char* name, int32_t kind, vornix_value* arguments,
    size_t count, const char* const* names, size_t name_count, vornix_value* result);
/* A member that was looked up once. Error 438 for what is none. */
VORNIX_API int32_t vornix_invoke_member(vornix_grid* grid, const vornix_member* member, int32_t kind,
    vornix_value* arguments, size_t count, vornix_value* result);

/* Many texts at once: all code points behind each other, and the number of code points of each. Half of a surrogate
 * pair that stands alone is a code point of its own. What is written into the block is given back with
 * vornix_text_block_clear, once. */
typedef struct vornix_text_block {
    const uint32_t* code_points;
    size_t code_point_count;
    const uint32_t* lengths;
    size_t count;
    void* storage;
} vornix_text_block;
VORNIX_API void vornix_text_block_clear(vornix_text_block* block);
/* The texts of a rectangle, column by column; public indices, the second corner included. An empty rectangle (a second
 * corner before the first) is an empty block. */
VORNIX_API int32_t vornix_read_texts(
    vornix_grid* grid, int16_t row1, int16_t col1, int16_t row2, int16_t col2, vornix_text_block* block);

/* -- Arrays: records of columns, for LoadFromArray -- */

/* All elements are empty. A grid that reads an array keeps it as it was, whatever is written meanwhile. A writing that
 * fails changes nothing. Errors 5 for a count that is not that of the records, 9 for a place that there is not, 13 for
 * another type, and those of the values. */
VORNIX_API int32_t vornix_array_create(size_t columns, size_t records, vornix_array** array);
VORNIX_API void vornix_array_retain(vornix_array* array);
VORNIX_API void vornix_array_release(vornix_array* array);
VORNIX_API int32_t vornix_array_set(vornix_array* array, size_t column, size_t record, const vornix_value* value);
/* A whole column at once; count is the number of records. A length of UINT32_MAX is null. */
VORNIX_API int32_t vornix_array_set_texts(vornix_array* array, size_t column, const uint32_t* code_points,
    size_t code_point_count, const uint32_t* lengths, size_t count);
/* type: VORNIX_I16, VORNIX_I32, VORNIX_I64, VORNIX_CURRENCY or VORNIX_BOOLEAN. */
VORNIX_API int32_t vornix_array_set_integers(
    vornix_array* array, size_t column, int32_t type, const int64_t* integers, size_t count);
/* type: VORNIX_SINGLE, VORNIX_DOUBLE or VORNIX_DATE. */
VORNIX_API int32_t vornix_array_set_numbers(
    vornix_array* array, size_t column, int32_t type, const double* numbers, size_t count);
VORNIX_API int32_t vornix_array_set_values(
    vornix_array* array, size_t column, const vornix_value* values, size_t count);

/* -- Fonts and pictures: never changed once made -- */

typedef struct vornix_font_info {
    vornix_text name; /* coming out: valid while the font is */
    double size; /* points */
    int32_t bold;
    int32_t italic;
    int32_t underline;
    int32_t strikethrough;
    int32_t charset;
} vornix_font_info;

/* Errors 5 without a size above 0 or for a character set outside 0 to 255, 6 for a size above 32767. */
VORNIX_API int32_t vornix_font_create(const vornix_font_info* info, vornix_font** font);
VORNIX_API int32_t vornix_font_describe(const vornix_font* font, vornix_font_info* info);
VORNIX_API void vornix_font_retain(vornix_font* font);
VORNIX_API void vornix_font_release(vornix_font* font);

typedef struct vornix_picture_info {
    int32_t handle; /* 0 for the empty picture */
    int32_t type; /* 0 none, 1 bitmap, 3 icon */
    int32_t width; /* HiMetric: hundredths of a millimetre */
    int32_t height;
    int32_t pixel_width;
    int32_t pixel_height;
} vornix_picture_info;

/* rgba: width * height * 4 bytes, straight alpha, rows from the top; error 5 for another length. An icon when any of it
 * is transparent, otherwise a bitmap; the empty picture when there are no pixels. */
VORNIX_API int32_t vornix_picture_from_rgba(
    int32_t width, int32_t height, const uint8_t* rgba, size_t length, vornix_picture** picture);
/* A PNG file: an icon or a bitmap like the above. Errors 53 when there is no such file, 75 when it cannot be read, 481
 * when it is no picture. */
VORNIX_API int32_t vornix_picture_load(const char* path, vornix_picture** picture);
VORNIX_API int32_t vornix_picture_describe(const vornix_picture* picture, vornix_picture_info* info);
VORNIX_API void vornix_picture_retain(vornix_picture* picture);
VORNIX_API void vornix_picture_release(vornix_picture* picture);

/* An object that passes through unseen. The function is called with the pointer when the last holder lets go of it, on
 * whichever thread that is; it may be null. */
VORNIX_API int32_t vornix_object_create(void* pointer, void (*release)(void* pointer), vornix_object** object);
/* Null for null, and for what a finished event has brought. */
VORNIX_API void* vornix_object_pointer(const vornix_object* object);
VORNIX_API void vornix_object_retain(vornix_object* object);
VORNIX_API void vornix_object_release(vornix_object* object);

/* -- Surfaces: devices to draw on, for arguments named PictureHdc or PrinterHdc -- */

/* Logical pixels, 1 to 32767 in each direction; scale 1 to 4. White at first. Error 7 for more pixels than there is memory
 * for. */
VORNIX_API int32_t vornix_surface_create(int32_t width, int32_t height, double scale, vornix_surface** surface);
VORNIX_API void vornix_surface_destroy(vornix_surface* surface);
VORNIX_API int32_t vornix_surface_hdc(const vornix_surface* surface, intptr_t* hdc);
/* 0x00BBGGRR, or 0x80000000 and the index of a system colour of the container without a screen. */
VORNIX_API int32_t vornix_surface_fill(vornix_surface* surface, uint32_t color);
/* 0xFFFFFFFF outside. */
VORNIX_API int32_t vornix_surface_pixel(const vornix_surface* surface, int32_t x, int32_t y, uint32_t* color);
/* Error 75 when the file cannot be written. */
VORNIX_API int32_t vornix_surface_save_png(const vornix_surface* surface, const char* path);

/* -- The container without a screen -- */

VORNIX_API int32_t vornix_host_get_user_mode(vornix_grid* grid, int32_t* user_mode);
VORNIX_API int32_t vornix_host_set_user_mode(vornix_grid* grid, int32_t user_mode);
/* The container's lifecycle. close ends in Terminate: members and input are error 5 from then on, what was written down
 * and the picture stay. */
VORNIX_API int32_t vornix_host_resize(vornix_grid* grid, int32_t width, int32_t height);
VORNIX_API int32_t vornix_host_show(vornix_grid* grid);
VORNIX_API int32_t vornix_host_hide(vornix_grid* grid);
VORNIX_API int32_t vornix_host_paint(vornix_grid* grid);
VORNIX_API int32_t vornix_host_enter_focus(vornix_grid* grid);
VORNIX_API int32_t vornix_host_exit_focus(vornix_grid* grid);
VORNIX_API int32_t vornix_host_close(vornix_grid* grid);
VORNIX_API int32_t vornix_host_is_closed(vornix_grid* grid, int32_t* closed);

/* Single notifications to the control itself, nothing implied. Buttons 1 left, 2 right, 4 middle; shift 1 Shift,
 * 2 Ctrl, 4 Alt; places in pixels of the client area. Key codes come back as the handlers left them. */
VORNIX_API int32_t vornix_host_mouse_down(vornix_grid* grid, float x, float y, int16_t button, int16_t shift);
VORNIX_API int32_t vornix_host_mouse_move(vornix_grid* grid, float x, float y, int16_t button, int16_t shift);
VORNIX_API int32_t vornix_host_mouse_up(vornix_grid* grid, float x, float y, int16_t button, int16_t shift);
VORNIX_API int32_t vornix_host_click(vornix_grid* grid);
VORNIX_API int32_t vornix_host_dbl_click(vornix_grid* grid);
VORNIX_API int32_t vornix_host_wheel(vornix_grid* grid, int32_t delta);
/* One tick of the control's timer, whether it runs or not: the control looks whether the pointer is still over it. The
 * pointer is where the latest notification or person put it; elsewhere before the first one. */
VORNIX_API int32_t vornix_host_tick(vornix_grid* grid);
VORNIX_API int32_t vornix_host_key_down(vornix_grid* grid, int16_t* code, int16_t shift);
VORNIX_API int32_t vornix_host_key_press(vornix_grid* grid, int16_t* character);
VORNIX_API int32_t vornix_host_key_up(vornix_grid* grid, int16_t* code, int16_t shift);

/* What a person does: the window on top at the place gets the notifications in the platform's order, and a bar scrolls
 * by its arrows, its trough and its thumb; keys go to what has the focus. A key is a name ("Left", "F2", "Escape",
 * "Delete", "Back", "Return", "Tab", ...). */
VORNIX_API int32_t vornix_host_click_at(vornix_grid* grid, float x, float y, int16_t button, int16_t shift);
VORNIX_API int32_t vornix_host_dbl_click_at(vornix_grid* grid, float x, float y, int16_t button, int16_t shift);
VORNIX_API int32_t vornix_host_drag(
    vornix_grid* grid, float x1, float y1, float x2, float y2, int16_t button, int16_t shift, int32_t steps);
VORNIX_API int32_t vornix_host_type(vornix_grid* grid, vornix_text text);
VORNIX_API int32_t vornix_host_press(vornix_grid* grid, const char* key, int16_t shift);
VORNIX_API int32_t vornix_host_press_code(vornix_grid* grid, int16_t code, int16_t shift);

typedef struct vornix_child_info {
    int32_t visible;
    int32_t enabled;
    int32_t left;
    int32_t top;
    int32_t width;
    int32_t height;
} vornix_child_info;
/* "scrV", "scrH", "txtTmp", "cboTmp", "fraEdit", "cPivot", "picSplitCol", "picSplitMove"; error 5 for other names. The
 * place is one in the client area; that of "txtTmp" and "cboTmp" is one in their frame, "fraEdit". */
VORNIX_API int32_t vornix_host_child(vornix_grid* grid, const char* name, vornix_child_info* info);

typedef struct vornix_bar_info {
    int32_t min;
    int32_t max;
    int32_t page;
    int32_t value;
} vornix_bar_info;
/* Of the bars "scrV" and "scrH"; error 438 for the other children. */
VORNIX_API int32_t vornix_host_bar(vornix_grid* grid, const char* name, vornix_bar_info* info);
/* What its user does to a bar, nothing implied: a notification by its number. */
enum {
    VORNIX_SB_LINEUP = 0,
    VORNIX_SB_LINEDOWN = 1,
    VORNIX_SB_PAGEUP = 2,
    VORNIX_SB_PAGEDOWN = 3,
    VORNIX_SB_THUMBPOSITION = 4, /* the thumb is let go: not used */
    VORNIX_SB_THUMBTRACK = 5, /* the thumb is dragged */
    VORNIX_SB_TOP = 6,
    VORNIX_SB_BOTTOM = 7,
    VORNIX_SB_ENDSCROLL = 8 /* behind each of the others */
};
/* track_position: where the thumb is held, limited to the range; null where it was. A disabled bar has no user; a hidden
 * one, and one of a control whose Redraw is off, goes unheard. Error 5 for another number. */
VORNIX_API int32_t vornix_host_notify_bar(
    vornix_grid* grid, const char* name, int32_t code, const int32_t* track_position);

/* The text of an editor, "txtTmp" or "cboTmp", and its selection in UTF-16 units; error 438 for the other children. The
 * text is valid until the grid is called again. A text that is set is one that the user has put in place of the whole,
 * by an assistive tool; the caret stands in front of it. A selection is limited to the text. */
VORNIX_API int32_t vornix_host_get_editor_text(vornix_grid* grid, const char* name, vornix_text* text);
VORNIX_API int32_t vornix_host_set_editor_text(vornix_grid* grid, const char* name, vornix_text text);
VORNIX_API int32_t vornix_host_get_editor_selection(
    vornix_grid* grid, const char* name, int32_t* start, int32_t* length);
VORNIX_API int32_t vornix_host_set_editor_selection(vornix_grid* grid, const char* name, int32_t start, int32_t length);
/* Single notifications of a key to an editor, whatever has the focus. What is left of the code the editor does by
 * itself: Delete and the keys of the caret at key_down, all that characters do at key_press. One that is hidden or
 * disabled hears nothing. */
VORNIX_API int32_t vornix_host_editor_key_down(vornix_grid* grid, const char* name, int16_t* code, int16_t shift);
VORNIX_API int32_t vornix_host_editor_key_press(vornix_grid* grid, const char* name, int16_t* character, int16_t shift);
VORNIX_API int32_t vornix_host_editor_key_up(vornix_grid* grid, const char* name, int16_t* code, int16_t shift);

typedef struct vornix_combo_info {
    int32_t item_count;
    int32_t list_index; /* -1 for none */
    int32_t dropped_down; /* the list shows */
    int32_t list_only; /* the field takes no characters */
} vornix_combo_info;
/* Of the combo box "cboTmp"; error 438 for the other children. */
VORNIX_API int32_t vornix_host_combo(vornix_grid* grid, const char* name, vornix_combo_info* info);
/* The text is valid until the grid is called again. Error 9 for a row that there is not. */
VORNIX_API int32_t vornix_host_combo_item(vornix_grid* grid, const char* name, int32_t index, vornix_text* text);
/* Its user clicks a row of the list. Error 9 for one that there is not. A box that is hidden or disabled has no user. */
VORNIX_API int32_t vornix_host_click_combo_item(vornix_grid* grid, const char* name, int32_t index);

/* What the control said since the log was cleared: events as they were raised, handled or not, and the names of the
 * properties that PropertyChanged reported. */
VORNIX_API int32_t vornix_host_clear_log(vornix_grid* grid);
VORNIX_API int32_t vornix_host_log_count(vornix_grid* grid, size_t* count);
/* At most `capacity` arguments are given (no event has more than 8), `count` says how many there are; clear each. */
VORNIX_API int32_t vornix_host_log_at(
    vornix_grid* grid, size_t index, int32_t* number, vornix_value* arguments, size_t capacity, size_t* count);
VORNIX_API int32_t vornix_host_property_change_count(vornix_grid* grid, size_t* count);
/* The name is valid until the grid is called again. */
VORNIX_API int32_t vornix_host_property_change_at(vornix_grid* grid, size_t index, const char** name);
/* Whole repaints and single cells painted since the log was cleared. */
VORNIX_API int32_t vornix_host_paint_counts(vornix_grid* grid, int32_t* repaints, int32_t* refreshes);

/* What it did to its surroundings. Texts are valid until the grid is called again. */
VORNIX_API int32_t vornix_host_message_box_count(vornix_grid* grid, size_t* count);
/* icon: "exclamation", "information" or "". */
VORNIX_API int32_t vornix_host_message_box_at(
    vornix_grid* grid, size_t index, vornix_text* title, vornix_text* text, const char** icon);
VORNIX_API int32_t vornix_host_get_clipboard(vornix_grid* grid, vornix_text* text);
VORNIX_API int32_t vornix_host_set_clipboard(vornix_grid* grid, vornix_text text);
/* "default", "size_we" or "size_ns". */
VORNIX_API int32_t vornix_host_pointer_shape(vornix_grid* grid, const char** shape);
/* The settings that the grid keeps by itself. */
VORNIX_API int32_t vornix_host_setting_count(vornix_grid* grid, size_t* count);
VORNIX_API int32_t vornix_host_setting_at(vornix_grid* grid, size_t index, vornix_setting* setting);
/* As the control saves and reads a setting. The value that is read replaces the one that is given, which is read where
 * there is no such setting. */
VORNIX_API int32_t vornix_host_save_setting(vornix_grid* grid, const vornix_setting* setting);
VORNIX_API int32_t vornix_host_get_setting(vornix_grid* grid, vornix_setting* setting);

/* The control's own surface. Pixels are logical; 0xFFFFFFFF outside. */
VORNIX_API int32_t vornix_host_pixel(vornix_grid* grid, int32_t x, int32_t y, uint32_t* color);
/* Size in device pixels. */
VORNIX_API int32_t vornix_host_image_size(vornix_grid* grid, int32_t* width, int32_t* height);
/* rgba: width * height * 4 bytes for the size in device pixels, else error 5. */
VORNIX_API int32_t vornix_host_image(vornix_grid* grid, uint8_t* rgba, size_t length);
/* Error 75 when the file cannot be written. */
VORNIX_API int32_t vornix_host_save_png(vornix_grid* grid, const char* path);

/* -- The scroll bar that comes with the grid, in a container of its own -- */

/* A bar belongs to the thread that made it, and is not used any more once it has been destroyed. */
typedef struct vornix_scroll_bar_options {
    size_t size; /* sizeof(vornix_scroll_bar_options) */
    int32_t orientation; /* of a new bar: 1 stands, all others lie */
    int32_t length; /* pixels, up to 32767; 100 where 0 */
    int32_t has_bag; /* what the bar was saved with; without one it is new */
    const vornix_bag_entry* bag;
    size_t bag_count;
} vornix_scroll_bar_options;

/* Events: Change(Value, Direction) and Scroll(Value), with Value by reference. As vornix_event_callback says otherwise. */
enum { VORNIX_SCROLL_BAR_CHANGE = 1, VORNIX_SCROLL_BAR_SCROLL = 2 };
typedef void (*vornix_scroll_bar_callback)(
    void* user, vornix_scroll_bar* bar, int32_t number, vornix_value* arguments, size_t count);

/* Options may be null. The bar is shown, and answers to its user once its member Subclass was called. */
VORNIX_API int32_t vornix_scroll_bar_create(const vornix_scroll_bar_options* options, vornix_scroll_bar** bar);
/* On any thread, while no other calls the bar. Inside one of its own calls (an event) this is error 5, and the bar stays.
 * Null is nothing. */
VORNIX_API int32_t vornix_scroll_bar_destroy(vornix_scroll_bar* bar);
VORNIX_API int32_t vornix_scroll_bar_set_callback(
    vornix_scroll_bar* bar, vornix_scroll_bar_callback callback, void* user);
/* A member by its name, as vornix_invoke calls those of a grid. */
VORNIX_API int32_t vornix_scroll_bar_invoke(vornix_scroll_bar* bar, const char* name, int32_t kind,
    const vornix_value* arguments, size_t count, vornix_value* result);
/* What its user does: VORNIX_SB_LINEUP to VORNIX_SB_ENDSCROLL, as for vornix_host_notify_bar. */
VORNIX_API int32_t vornix_scroll_bar_notify(vornix_scroll_bar* bar, int32_t code, const int32_t* track_position);
VORNIX_API int32_t vornix_scroll_bar_resize(vornix_scroll_bar* bar, int32_t width, int32_t height);
/* What the bar saves: at most `capacity` entries are given, `count` says how many there are. Their names are valid until
 * the bar is saved again. */
VORNIX_API int32_t vornix_scroll_bar_save(
    vornix_scroll_bar* bar, vornix_bag_entry* entries, size_t capacity, size_t* count);

/* -- The text box that comes with the grid, in a container of its own -- */

/* A box belongs to the thread that made it, and is not used any more once it has been destroyed. */
typedef struct vornix_text_box_options {
    size_t size; /* sizeof(vornix_text_box_options) */
    int32_t width; /* pixels, up to 32767; 120 where 0 */
    int32_t height; /* 21 where 0 */
    int32_t has_bag; /* what the box was saved with; without one it is new */
    const vornix_bag_entry* bag;
    size_t bag_count;
} vornix_text_box_options;

/* Events, with their arguments in this order; `ref` marks those by reference. As vornix_event_callback says otherwise. */
enum {
    VORNIX_TEXT_BOX_CHANGE = 1,
    VORNIX_TEXT_BOX_CLICK = 2,
    VORNIX_TEXT_BOX_OLE_START_DRAG = 3, /* Data, ref AllowedEffects */
    VORNIX_TEXT_BOX_OLE_SET_DATA = 4, /* Data, ref DataFormat */
    VORNIX_TEXT_BOX_OLE_GIVE_FEEDBACK = 5, /* ref Effect, ref DefaultCursors */
    VORNIX_TEXT_BOX_OLE_DRAG_OVER = 6, /* Data, ref Effect, ref Button, ref Shift, ref x, ref y, ref State */
    VORNIX_TEXT_BOX_OLE_DRAG_DROP = 7, /* Data, ref Effect, ref Button, ref Shift, ref x, ref y */
    VORNIX_TEXT_BOX_OLE_COMPLETE_DRAG = 8, /* ref Effect */
    VORNIX_TEXT_BOX_MOUSE_UP = 9, /* Button, Shift, x, y */
    VORNIX_TEXT_BOX_MOUSE_MOVE = 10, /* Button, Shift, x, y */
    VORNIX_TEXT_BOX_MOUSE_DOWN = 11, /* Button, Shift, x, y */
    VORNIX_TEXT_BOX_KEY_UP = 12, /* ref KeyCode, ref Shift */
    VORNIX_TEXT_BOX_KEY_PRESS = 13, /* ref KeyAscii */
    VORNIX_TEXT_BOX_KEY_DOWN = 14, /* ref KeyCode, ref Shift */
    VORNIX_TEXT_BOX_DBL_CLICK = 15,
    VORNIX_TEXT_BOX_RESIZE = 16,
    VORNIX_TEXT_BOX_KEY_ARROW_MOVE = 17 /* ref KeyCode */
};
typedef void (*vornix_text_box_callback)(
    void* user, vornix_text_box* box, int32_t number, vornix_value* arguments, size_t count);

/* Options may be null. The box is shown, without the focus. */
VORNIX_API int32_t vornix_text_box_create(const vornix_text_box_options* options, vornix_text_box** box);
/* As vornix_scroll_bar_destroy. */
VORNIX_API int32_t vornix_text_box_destroy(vornix_text_box* box);
VORNIX_API int32_t vornix_text_box_set_callback(vornix_text_box* box, vornix_text_box_callback callback, void* user);
/* A member by its name, as vornix_invoke calls those of a grid. */
VORNIX_API int32_t vornix_text_box_invoke(vornix_text_box* box, const char* name, int32_t kind,
    const vornix_value* arguments, size_t count, vornix_value* result);
/* Single notifications of its user, as vornix_host_editor_key_down and its neighbours. */
VORNIX_API int32_t vornix_text_box_key_down(vornix_text_box* box, int16_t* code, int16_t shift);
VORNIX_API int32_t vornix_text_box_key_press(vornix_text_box* box, int16_t* character, int16_t shift);
VORNIX_API int32_t vornix_text_box_key_up(vornix_text_box* box, int16_t* code, int16_t shift);
/* What a person does, as vornix_host_type and vornix_host_press: the box gets the focus first. */
VORNIX_API int32_t vornix_text_box_type(vornix_text_box* box, vornix_text text);
VORNIX_API int32_t vornix_text_box_press(vornix_text_box* box, const char* key, int16_t shift);
VORNIX_API int32_t vornix_text_box_press_code(vornix_text_box* box, int16_t code, int16_t shift);
/* Its user pastes a text in place of the selection. */
VORNIX_API int32_t vornix_text_box_paste(vornix_text_box* box, vornix_text text);
VORNIX_API int32_t vornix_text_box_resize(vornix_text_box* box, int32_t width, int32_t height);
VORNIX_API int32_t vornix_text_box_size(vornix_text_box* box, int32_t* width, int32_t* height);
/* What the box saves, as vornix_scroll_bar_save; clear each value that is given. */
VORNIX_API int32_t vornix_text_box_save(
    vornix_text_box* box, vornix_bag_entry* entries, size_t capacity, size_t* count);

#ifdef __cplusplus
}
#endif

#endif
