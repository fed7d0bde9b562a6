StateMessage {
    drawing: "no_internet"
    title: "Whoops!"
    sentence: "Please check your connection\nand try again"
    button: "Try again!"
}
