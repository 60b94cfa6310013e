; Fills the screen of 320 by 200 with magenta, copies what it reads from the file that the command line's last word
; names to PLAYED in the current directory, and ends with a key.
        org 100h
        mov ax, 13h
        int 10h
        mov dx, 3c8h
        mov al, 1
        out dx, al
        inc dx
        mov al, 63
        out dx, al
        xor al, al
        out dx, al
        mov al, 63
        out dx, al
        mov ax, 0a000h
        mov es, ax
        xor di, di
        mov cx, 64000
        mov al, 1
        rep stosb
        mov cl, [80h]
        xor ch, ch
        mov di, 81h
        add di, cx
        mov byte [di], 0
%include "lastword.inc"
        jc wait_key
        mov bx, ax
        mov dx, buffer
        mov cx, 60
        mov ah, 3fh
        int 21h
        push ax
        mov ah, 3eh
        int 21h
        mov ah, 3ch
        xor cx, cx
        mov dx, played
        int 21h
        mov bx, ax
        pop cx
        mov dx, buffer
        mov ah, 40h
        int 21h
        mov ah, 3eh
        int 21h
wait_key:
        xor ah, ah
        int 16h
        mov ax, 3
        int 10h
        mov ax, 4c00h
        int 21h

played  db 'PLAYED', 0
buffer  times 60 db 0
